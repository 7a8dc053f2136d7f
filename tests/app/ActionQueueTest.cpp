#include "app/ActionQueue.h"

#include <gtest/gtest.h>

#include <string>

namespace sonavel {
namespace {

TEST(ActionQueue, ActionsThatComeWhileOneRunsWaitInTheirOrderOnePerControl)
{
    ActionQueue queue;
    std::string order;
    const int first = 1;
    const int second = 2;
    const int third = 3;
    queue.perform(&first, [&] {
        queue.perform(&second, [&] { order += "replaced "; });
        queue.perform(&third, [&] {
            order += "third ";
            queue.perform(&second, [&] { order += "later "; });
            order += "third ends ";
        });
        queue.perform(&second, [&] { order += "second "; });
        queue.perform(&first, [&] { order += "again "; });
        order += "first ";
    });
    EXPECT_EQ(order, "first second third third ends again later ");
}

} // namespace
} // namespace sonavel
