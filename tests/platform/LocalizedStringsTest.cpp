#include "platform/LocalizedStrings.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(Placeholders, WhatIsFilledInIsNotExpandedAgain)
{
    EXPECT_EQ(filledIn("Remove “%@”?", "%@ <b>%li</b>"), "Remove “%@ <b>%li</b>”?");
    EXPECT_EQ(filledIn("Remove %li of %@", 1'000'000), "Remove 1000000 of %@");
    EXPECT_EQ(filledIn("none", "x"), "none");
}

} // namespace
} // namespace sonavel
