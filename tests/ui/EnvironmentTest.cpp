#include "tests/ui/LayoutFixture.h"

#include <memory>

namespace kestrune::ui {

namespace {

class AnEnvironment : public LayoutFixture {};

const Font Title = Font::preferred(TextStyle::title);

Font weighted(Font font, FontWeight weight) {
    font.weight = weight;
    return font;
}

} // namespace

TEST_F(AnEnvironment, IsThatOfPrimaryBodyTextWhenNothingIsSaid) {
    const StyledText expected{{{"a", FontWeight::regular}}, Font{}, Color::primary, TextAlignment::leading};
    EXPECT_EQ(textOf(Text("a")), expected);
}

TEST_F(AnEnvironment, ReachesEverythingInside) {
    const View view = VStack({}, {HStack({}, {SystemImage("a").padding(2).frame({.width = 40}).fixedSize()}),
                                  Text("b").background(VerbatimText("c"))})
                          .font(Title)
                          .foregroundStyle(Color::green);
    EXPECT_EQ(describeView(view), "scene 40x64\n"
                                  "  symbol 7,2 26x26 a title green\n"
                                  "  text 15,38 11x26 \"c\" title green\n"
                                  "  text 15,38 11x26 \"b\" title green\n");
}

TEST_F(AnEnvironment, EndsWhereSomethingInsideSaysOtherwise) {
    const View view =
        VStack({.spacing = 0}, {Text("a").font(Font::preferred(TextStyle::caption)), Text("b")});
    EXPECT_EQ(describeView(view.font(Title)), "scene 11x39\n"
                                              "  text 3,0 5x13 \"a\" caption\n"
                                              "  text 0,13 11x26 \"b\" title\n");
    EXPECT_EQ(textOf(Text("a").foregroundStyle(Color::green).foregroundStyle(Color::white)).color,
              Color::green);
}

TEST_F(AnEnvironment, AppliesAWeightToTheFontInEitherOrder) {
    EXPECT_EQ(textOf(Text("a").font(Title).fontWeight(FontWeight::light)).font,
              weighted(Title, FontWeight::light));
    EXPECT_EQ(textOf(Text("a").fontWeight(FontWeight::light).font(Title)).font,
              weighted(Title, FontWeight::light));
    EXPECT_EQ(textOf(Text("a").fontWeight(FontWeight::semibold)).font,
              weighted(Font{}, FontWeight::semibold));
    EXPECT_EQ(symbolOf(SystemImage("a").fontWeight(FontWeight::bold)).font,
              weighted(Font{}, FontWeight::bold));
}

TEST_F(AnEnvironment, KeepsTheInnermostOfTwoWeights) {
    EXPECT_EQ(textOf(Text("a").fontWeight(FontWeight::light).fontWeight(FontWeight::black)).font.weight,
              FontWeight::light);
}

TEST_F(AnEnvironment, HasTheAccentColourForATintUnlessToldOtherwise) {
    const View tinted = Text("a").foregroundStyle(ForegroundStyle::tint());
    EXPECT_EQ(textOf(tinted).color, Color::accent);
    EXPECT_EQ(textOf(tinted.tint(Color::green)).color, Color::green);
    EXPECT_EQ(symbolOf(SystemImage("a").foregroundStyle(ForegroundStyle::tint()).tint(Color::white)).color,
              Color::white);
    EXPECT_EQ(textOf(Text("a").tint(Color::green)).color, Color::primary);
}

TEST_F(AnEnvironment, KeepsTheInnermostCase) {
    EXPECT_EQ(textOf(Text("a").textCase(TextCase::asWritten).textCase(TextCase::uppercase)).string(), "a");
}

TEST_F(AnEnvironment, TellsTextsTheirAlignment) {
    EXPECT_EQ(textOf(Text("a").multilineTextAlignment(TextAlignment::trailing)).alignment,
              TextAlignment::trailing);
}

TEST_F(AnEnvironment, TellsControlsTheirSizeAndShortcut) {
    const ButtonElement button = buttonOf(Button("a", [] {})
                                              .padding(0)
                                              .controlSize(ControlSize::mini)
                                              .keyboardShortcut(KeyboardShortcut::cancelAction));
    EXPECT_EQ(button.size, ControlSize::mini);
    EXPECT_EQ(button.shortcut, KeyboardShortcut::cancelAction);
    EXPECT_EQ(buttonOf(Button("a", [] {})).size, ControlSize::regular);
    EXPECT_EQ(buttonOf(Button("a", [] {})).shortcut, KeyboardShortcut::none);
}

TEST_F(AnEnvironment, LeavesTheViewItselfAsItWas) {
    const View text = Text("a");
    const View larger = text.font(Title);
    EXPECT_EQ(textOf(text).font, Font{});
    EXPECT_EQ(textOf(larger).font, Title);
}

} // namespace kestrune::ui
