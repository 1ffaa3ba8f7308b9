#include "desk/paint/desk/StatusBarPainter.h"
#include "desk/paint/toolkit/Surface.h"
#include "desk/paint/toolkit/TextPainter.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace kestrune::desk {
namespace {

class Text : public testing::Test {
protected:
    std::optional<Surface> surface_ = Surface::create({400, 100}, 1);
    TextPainter text_{surface_->context()};
};

TEST_F(Text, IsSetInInter) { EXPECT_EQ(text_.resolvedFamily(), "Inter"); }

TEST_F(Text, GivesTabularNumbersOneWidth) {
    const TextStyle tabular{.size = 13, .tabularNumbers = true};
    EXPECT_EQ(text_.width("1111", tabular), text_.width("8888", tabular));
    const TextStyle proportional{.size = 13};
    EXPECT_LT(text_.width("1111", proportional), text_.width("8888", proportional));
}

TEST_F(Text, EndsInAnEllipsisWhereItIsTooLong) {
    const TextStyle style{.size = 13, .maximumWidth = 80};
    const double width = text_.paint("This sentence is far too long for that", {0, 50}, style);
    EXPECT_LE(width, 80.5);
    EXPECT_GT(width, 40);
    EXPECT_EQ(text_.width("Short", style), text_.width("Short", {.size = 13}));
}

TEST_F(Text, GetsWiderWithItsSizeAndWeight) {
    const double regular = text_.width("Kestrune", {.size = 13});
    EXPECT_GT(text_.width("Kestrune", {.size = 20}), regular * 1.3);
    EXPECT_GT(text_.width("Kestrune", {.size = 13, .weight = FontWeight::semibold}), regular);
}

TEST_F(Text, ReplacesIllFormedBytes) {
    EXPECT_EQ(text_.width("a\xFF", {.size = 13}), text_.width("a\xEF\xBF\xBD", {.size = 13}));
}

TEST(GroupedNumber, SeparatesThousands) {
    EXPECT_EQ(groupedNumber(0), "0");
    EXPECT_EQ(groupedNumber(999), "999");
    EXPECT_EQ(groupedNumber(1000), "1,000");
    EXPECT_EQ(groupedNumber(123456), "123,456");
    EXPECT_EQ(groupedNumber(UINT64_MAX), "18,446,744,073,709,551,615");
}

} // namespace
} // namespace kestrune::desk
