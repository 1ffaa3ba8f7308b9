#include "ui/SceneText.h"

#include "ui/StyleNames.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrune::ui {

namespace {

std::string lineOf(const Element& element) {
    const std::string text = describe({{1, 1}, {element}});
    const std::string before = "scene 1x1\n  ";
    EXPECT_EQ(text.substr(0, before.size()), before);
    return text.substr(before.size());
}

TextElement text(StyledText styled) { return {{1, 2, 3, 4}, std::move(styled)}; }

template <typename Enumeration>
std::string names(int count) {
    std::string names;
    for (int value = 0; value < count; ++value) {
        names += std::string(nameOf(static_cast<Enumeration>(value))) + ' ';
    }
    return names;
}

} // namespace

TEST(SceneText, BeginsWithTheSize) { EXPECT_EQ(describe({{460, 200}, {}}), "scene 460x200\n"); }

TEST(SceneText, HasALineForAText) {
    EXPECT_EQ(lineOf(text({{{"a", FontWeight::regular}}, {}})), "text 1,2 3x4 \"a\" body\n");
    EXPECT_EQ(lineOf(text({{{"a", FontWeight::bold}},
                           {13, FontWeight::bold, TextStyle::body},
                           Color::green,
                           TextAlignment::center})),
              "text 1,2 3x4 \"a\" body bold green center\n");
}

TEST(SceneText, SaysThatATextIsPassedOver) {
    TextElement hidden = text({{{"a", FontWeight::regular}}, {}});
    hidden.isAccessibilityHidden = true;
    EXPECT_EQ(lineOf(hidden), "text 1,2 3x4 \"a\" body accessibilityHidden\n");
}

TEST(SceneText, NamesTheWeightOfAPartOfAText) {
    EXPECT_EQ(lineOf(text({{{"a ", FontWeight::regular}, {"b", FontWeight::bold}}, {}})),
              "text 1,2 3x4 \"a \" bold:\"b\" body\n");
}

TEST(SceneText, NamesAWeightThatIsNotTheOneOfTheTextStyle) {
    EXPECT_EQ(lineOf(text({{}, Font::preferred(TextStyle::headline)})), "text 1,2 3x4 headline\n");
    EXPECT_EQ(lineOf(text({{}, {13, FontWeight::regular, TextStyle::headline}})),
              "text 1,2 3x4 headline regular\n");
}

TEST(SceneText, TellsTheSizeOfAFontWithoutATextStyle) {
    EXPECT_EQ(lineOf(text({{}, Font::system(44, FontWeight::light)})), "text 1,2 3x4 44pt light\n");
    EXPECT_EQ(lineOf(text({{}, Font::system(11.5)})), "text 1,2 3x4 11.5pt\n");
}

TEST(SceneText, KeepsATextOnOneLine) {
    EXPECT_EQ(lineOf(text({{{"\"a\"\n\\b", FontWeight::regular}}, {}})),
              "text 1,2 3x4 \"\\\"a\\\"\\n\\\\b\" body\n");
}

TEST(SceneText, HasALineForASymbol) {
    EXPECT_EQ(lineOf(SymbolElement{{1, 2, 3, 4}, {"a.fill", {}}}), "symbol 1,2 3x4 a.fill body\n");
    EXPECT_EQ(lineOf(SymbolElement{{1, 2, 3, 4}, {"a.fill", {}, ImageScale::large, Color::secondary}}),
              "symbol 1,2 3x4 a.fill body large secondary\n");
}

TEST(SceneText, HasALineForAShape) {
    EXPECT_EQ(lineOf(ShapeElement{{1, 2, 3, 4}}), "shape 1,2 3x4 primary\n");
    EXPECT_EQ(lineOf(ShapeElement{{1, 2, 3, 4}, 6, CornerStyle::circular}),
              "shape 1,2 3x4 radius 6 primary\n");
    EXPECT_EQ(lineOf(ShapeElement{{1, 2, 3, 4}, 6, CornerStyle::continuous, Color::accent, 0.75}),
              "shape 1,2 3x4 radius 6 continuous accent opacity 0.75\n");
}

TEST(SceneText, HasALineForAButton) {
    ButtonElement button;
    button.frame = {1, 2, 3, 4};
    button.title = "OK";
    EXPECT_EQ(lineOf(button), "button 1,2 3x4 \"OK\" bordered action 0\n");
    button.kind = ButtonElement::Kind::link;
    button.size = ControlSize::small;
    button.role = ButtonRole::cancel;
    button.shortcut = KeyboardShortcut::cancelAction;
    button.action = 12;
    EXPECT_EQ(lineOf(button), "button 1,2 3x4 \"OK\" link small cancel cancelAction action 12\n");
}

TEST(SceneText, HasLinesForTheBodiesOfAButton) {
    ButtonElement button;
    button.frame = {1, 2, 3, 4};
    button.kind = ButtonElement::Kind::custom;
    button.title = "OK";
    button.body = {ShapeElement{{1, 2, 3, 4}}, SymbolElement{{1, 2, 3, 4}, {"a", {}}}};
    button.pressedBody = {ShapeElement{{5, 6, 7, 8}}};
    EXPECT_EQ(lineOf(button), "button 1,2 3x4 \"OK\" custom action 0\n"
                              "    shape 1,2 3x4 primary\n"
                              "    symbol 1,2 3x4 a body\n"
                              "    pressed shape 5,6 7x8 primary\n");
}

TEST(SceneText, HasALineForAToggle) {
    EXPECT_EQ(lineOf(ToggleElement{{1, 2, 3, 4}, "Launch"}), "toggle 1,2 3x4 \"Launch\" off switch 0\n");
    EXPECT_EQ(lineOf(ToggleElement{{1, 2, 3, 4}, "Launch", ControlSize::mini, true, 2}),
              "toggle 1,2 3x4 \"Launch\" on mini switch 2\n");
}

TEST(SceneText, WritesNumbersWithUpToThreeDecimals) {
    EXPECT_EQ(lineOf(ShapeElement{{-1, -0.0001, 3.25, 4.0625}}), "shape -1,0 3.25x4.063 primary\n");
    EXPECT_EQ(lineOf(ShapeElement{{-0.5, 1.001, 1e6, 2.9999}}), "shape -0.5,1.001 1000000x3 primary\n");
}

TEST(SceneText, HasANameForEveryStyle) {
    EXPECT_EQ(names<TextStyle>(11),
              "largeTitle title title2 title3 headline body callout subheadline footnote "
              "caption caption2 ");
    EXPECT_EQ(names<FontWeight>(9), "ultraLight thin light regular medium semibold bold heavy black ");
    EXPECT_EQ(names<Color>(10),
              "primary secondary tertiary accent green white link sectionFill sectionBorder separator ");
    EXPECT_EQ(names<TextAlignment>(3), "leading center trailing ");
    EXPECT_EQ(names<ImageScale>(3), "small medium large ");
    EXPECT_EQ(names<ControlSize>(4), "mini small regular large ");
    EXPECT_EQ(names<ButtonRole>(3), "none cancel destructive ");
    EXPECT_EQ(names<CornerStyle>(2), "circular continuous ");
    EXPECT_EQ(names<KeyboardShortcut>(3), "none defaultAction cancelAction ");
}

} // namespace kestrune::ui
