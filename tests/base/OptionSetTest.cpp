#include "base/OptionSet.h"

#include <gtest/gtest.h>

namespace kestrune {

namespace {

enum class Colors : unsigned { none = 0, red = 1, green = 2, blue = 4 };

} // namespace

template <>
inline constexpr bool IsOptionSet<Colors> = true;

namespace {

TEST(OptionSet, CombinesItsBits) {
    EXPECT_EQ(static_cast<unsigned>(Colors::red | Colors::blue), 5U);
    EXPECT_EQ(Colors::red | Colors::none, Colors::red);
}

TEST(OptionSet, ContainsAPartWhenEveryBitOfItIsSet) {
    const Colors purple = Colors::red | Colors::blue;
    EXPECT_TRUE(contains(purple, Colors::red));
    EXPECT_TRUE(contains(purple, Colors::none));
    EXPECT_FALSE(contains(purple, Colors::green));
    EXPECT_FALSE(contains(purple, Colors::red | Colors::green));
}

} // namespace
} // namespace kestrune
