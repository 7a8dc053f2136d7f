// Notifications, and what is filled into texts.
#include "platform/LocalizedStrings.h"
#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(Placeholders, WhatIsFilledInIsNotExpandedAgain)
{
    EXPECT_EQ(filledIn("Remove “%@”?", "%@ <b>%li</b>"), "Remove “%@ <b>%li</b>”?");
    EXPECT_EQ(filledIn("Remove %li of %@", 1'000'000), "Remove 1000000 of %@");
    EXPECT_EQ(filledIn("none", "x"), "none");
}

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
