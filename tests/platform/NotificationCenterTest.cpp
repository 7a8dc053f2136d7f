#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(NotificationCenter, AnObserverHearsItsNameFromItsSenderOrFromAnyInTheOrderOfRegistration)
{
    NotificationCenter center;
    const int sender = 0;
    const int other = 0;
    std::string heard;
    center.addObserver([&] { heard += "any "; }, "stalled", nullptr);
    center.addObserver([&] { heard += "own "; }, "stalled", &sender);
    center.addObserver([&] { heard += "failed "; }, "failed", &sender);
    center.postNotificationName("stalled", &sender);
    center.postNotificationName("stalled", &other);
    center.postNotificationName("failed", &other);
    EXPECT_EQ(heard, "any own any ");
}

} // namespace
} // namespace sonavel
