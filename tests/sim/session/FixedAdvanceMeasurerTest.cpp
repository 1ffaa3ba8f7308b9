#include "sim/session/FixedAdvanceMeasurer.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using ui::ControlSize;
using ui::Font;
using ui::FontWeight;
using ui::StyledText;
using ui::TextStyle;

StyledText text(const std::string& string, FontWeight weight = FontWeight::regular) {
    return {{{string, weight}}, Font::system(20, weight)};
}

TEST(FixedAdvanceMeasurer, GivesEachCharacterHalfTheSize) {
    const FixedAdvanceMeasurer measurer;
    EXPECT_EQ(measurer.measureText(text("abc"), std::nullopt), (Size{30, 25}));
    EXPECT_EQ(measurer.measureText(text("a\xE2\x80\xA6"), std::nullopt), (Size{20, 25}));
    EXPECT_EQ(measurer.measureText(text("abc", FontWeight::bold), std::nullopt).width, 33);
    EXPECT_EQ(measurer.measureText(text(""), std::nullopt), (Size{0, 25}));
}

TEST(FixedAdvanceMeasurer, BreaksLinesAtBlanks) {
    const FixedAdvanceMeasurer measurer;
    EXPECT_EQ(measurer.measureText(text("aa bb cc"), 80), (Size{80, 25}));
    EXPECT_EQ(measurer.measureText(text("aa bb cc"), 79), (Size{50, 50}));
    EXPECT_EQ(measurer.measureText(text("aa bb cc"), 20), (Size{20, 75}));
    EXPECT_EQ(measurer.measureText(text("aa\nbb cc"), std::nullopt), (Size{50, 50}));
}

TEST(FixedAdvanceMeasurer, LetsAWordStickOutThatIsTooLong) {
    EXPECT_EQ(FixedAdvanceMeasurer().measureText(text("aa bbbbbb"), 40), (Size{60, 50}));
}

TEST(FixedAdvanceMeasurer, KeepsAWordTogetherThatChangesItsWeight) {
    StyledText mixed = text("aa b");
    mixed.runs.push_back({"b", FontWeight::bold});
    EXPECT_EQ(FixedAdvanceMeasurer().measureText(mixed, 40), (Size{21, 50}));
}

TEST(FixedAdvanceMeasurer, TakesTheLineHeightsOfTextStyles) {
    const StyledText title{{{"a", FontWeight::regular}}, Font::preferred(TextStyle::title)};
    EXPECT_EQ(FixedAdvanceMeasurer().measureText(title, std::nullopt).height, 26);
}

TEST(FixedAdvanceMeasurer, MakesTextsLargerButNothingElse) {
    const FixedAdvanceMeasurer larger(1.5);
    EXPECT_EQ(larger.measureText(text("abc"), std::nullopt), (Size{45, 37.5}));
    EXPECT_EQ(larger.measureSwitch(ControlSize::small), (Size{32, 18}));
}

TEST(FixedAdvanceMeasurer, MakesSymbolsAsTheirFontAndScaleSay) {
    const FixedAdvanceMeasurer measurer;
    EXPECT_EQ(measurer.measureSymbol({"circle", Font::system(30)}), (Size{36, 36}));
    EXPECT_EQ(measurer.measureSymbol({"circle", Font::system(30), ui::ImageScale::small}), (Size{27, 27}));
    EXPECT_EQ(measurer.measureSymbol({"circle", Font::system(30), ui::ImageScale::large}), (Size{45, 45}));
}

TEST(FixedAdvanceMeasurer, KnowsTheControls) {
    const FixedAdvanceMeasurer measurer;
    EXPECT_EQ(measurer.measureSwitch(ControlSize::mini), (Size{26, 15}));
    EXPECT_EQ(measurer.measureSwitch(ControlSize::small), (Size{32, 18}));
    EXPECT_EQ(measurer.measureSwitch(ControlSize::regular), (Size{38, 22}));
    EXPECT_EQ(measurer.measureSwitch(ControlSize::large), (Size{38, 22}));
    EXPECT_EQ(measurer.measurePushButton("abcd", ControlSize::mini), (Size{56, 15}));
    EXPECT_EQ(measurer.measurePushButton("abcd", ControlSize::small), (Size{56, 18}));
    EXPECT_EQ(measurer.measurePushButton("abcd", ControlSize::regular), (Size{56, 22}));
    EXPECT_EQ(measurer.measurePushButton("abcd", ControlSize::large), (Size{56, 28}));
}

} // namespace
} // namespace kestrune::sim
