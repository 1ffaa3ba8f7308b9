#include "ui/Font.h"

#include <gtest/gtest.h>

namespace kestrune::ui {

namespace {

struct Expected {
    TextStyle style;
    double size;
    double lineHeight;
    FontWeight weight;
};

constexpr Expected Styles[] = {
    {TextStyle::largeTitle, 26, 32, FontWeight::regular},
    {TextStyle::title, 22, 26, FontWeight::regular},
    {TextStyle::title2, 17, 22, FontWeight::regular},
    {TextStyle::title3, 15, 20, FontWeight::regular},
    {TextStyle::headline, 13, 16, FontWeight::bold},
    {TextStyle::body, 13, 16, FontWeight::regular},
    {TextStyle::callout, 12, 15, FontWeight::regular},
    {TextStyle::subheadline, 11, 14, FontWeight::regular},
    {TextStyle::footnote, 10, 13, FontWeight::regular},
    {TextStyle::caption, 10, 13, FontWeight::regular},
    {TextStyle::caption2, 10, 13, FontWeight::medium},
};

} // namespace

TEST(Font, HasTheSizeTheLineHeightAndTheWeightOfEachTextStyle) {
    for (const Expected& expected : Styles) {
        EXPECT_EQ(Font::preferred(expected.style), (Font{expected.size, expected.weight, expected.style}));
        EXPECT_EQ(lineHeight(expected.style), expected.lineHeight);
    }
}

TEST(Font, IsThatOfBodyTextUnlessToldOtherwise) { EXPECT_EQ(Font{}, Font::preferred(TextStyle::body)); }

TEST(Font, OfASizeOfItsOwnHasNoTextStyle) {
    EXPECT_EQ(Font::system(13).style, std::nullopt);
    EXPECT_NE(Font::system(13), Font::preferred(TextStyle::body));
    EXPECT_EQ(Font::system(44, FontWeight::light).weight, FontWeight::light);
}

} // namespace kestrune::ui
