#include "app/Gate.h"

#include <gtest/gtest.h>

#include <string>

namespace sonavel {
namespace {

TEST(Gate, ActionsThatComeWhileOneRunsWaitInTheirOrderOnePerControl)
{
    Gate gate;
    std::string order;
    const int first = 1;
    const int second = 2;
    const int third = 3;
    gate.perform(&first, [&] {
        gate.perform(&second, [&] { order += "replaced "; });
        gate.perform(&third, [&] {
            order += "third ";
            gate.perform(&second, [&] { order += "later "; });
            order += "third ends ";
        });
        gate.perform(&second, [&] { order += "second "; });
        gate.perform(&first, [&] { order += "again "; });
        order += "first ";
    });
    EXPECT_EQ(order, "first second third third ends again later ");
}

} // namespace
} // namespace sonavel
