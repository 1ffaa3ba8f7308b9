#include "desk/paint/toolkit/Text.h"

#include "desk/paint/desk/Chrome.h"
#include "desk/paint/toolkit/Surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace kestrune::desk {
namespace {

class Text : public testing::Test {
protected:
    std::optional<Surface> surface_ = Surface::create({400, 100}, 1);
    TextPainter text_{surface_->context()};
};

// The width of a text in a family, as Pango sets it without anything of ours.
double widthInFamily(cairo_t* context, const char* text, const char* family) {
    const TextLayoutHandle layout{pango_cairo_create_layout(context)};
    const FontDescriptionHandle font{pango_font_description_new()};
    pango_font_description_set_family(font.get(), family);
    pango_font_description_set_absolute_size(font.get(), 11 * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font.get());
    pango_layout_set_text(layout.get(), text, -1);
    int width = 0;
    pango_layout_get_size(layout.get(), &width, nullptr);
    return static_cast<double>(width) / PANGO_SCALE;
}

TEST_F(Text, IsSetInInter) {
    constexpr const char* Sentence = "The Dock stays where it is, and nowhere else";
    const double width = text_.width(Sentence, {.size = 11});
    EXPECT_NEAR(width, widthInFamily(surface_->context(), Sentence, "Inter"), 2);
    EXPECT_GT(std::abs(width - widthInFamily(surface_->context(), Sentence, "DejaVu Sans")), 8);
}

TEST_F(Text, IsMeasuredAlikeWhereNothingIsPainted) {
    TextPainter measure;
    EXPECT_EQ(measure.width("Kestrune", {.size = 13}), text_.width("Kestrune", {.size = 13}));
}

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
