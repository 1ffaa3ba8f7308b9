#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class ALabel : public LayoutFixture {};

} // namespace

TEST_F(ALabel, HasItsSymbolInASlotBeforeItsTitle) {
    // 1.25 ems of 13 points are a slot of 17, in which the symbol of 16 begins at 0.5.
    EXPECT_EQ(describeView(Label("Finish", "2.circle.fill")), "scene 65x16\n"
                                                              "  symbol 1,0 16x16 2.circle.fill body\n"
                                                              "  text 23,0 42x16 \"Finish\" body\n");
}

TEST_F(ALabel, HasAWiderSlotForAWiderSymbol) {
    EXPECT_EQ(describeView(Label("Finish", "a").imageScale(ImageScale::large)),
              "scene 68x20\n"
              "  symbol 0,0 20x20 a body large\n"
              "  text 26,2 42x16 \"Finish\" body\n");
}

TEST_F(ALabel, HasItsSymbolInTheMiddleOfTheFirstLine) {
    EXPECT_EQ(describeView(Label("The Dock stays", "a").imageScale(ImageScale::small), {.width = 83}),
              "scene 83x32\n"
              "  symbol 3,2 12x12 a body small\n"
              "  text 23,0 60x32 \"The Dock stays\" body\n");
    EXPECT_EQ(describeView(Label("The Dock stays", "a").imageScale(ImageScale::large), {.width = 86}),
              "scene 86x34\n"
              "  symbol 0,0 20x20 a body large\n"
              "  text 26,2 60x32 \"The Dock stays\" body\n");
}

TEST_F(ALabel, IsTranslatedAndStyledAsItsPlaceSays) {
    translations["Finish"] = "Fertig";
    EXPECT_EQ(
        describeView(Label("Finish", "a").foregroundStyle(Color::secondary).fontWeight(FontWeight::bold)),
        "scene 71x16\n"
        "  symbol 1,0 16x16 a body bold secondary\n"
        "  text 23,0 48x16 \"Fertig\" body bold secondary\n");
}

TEST_F(ALabel, IsAsHighAsASymbolThatIsHigherThanItsLines) {
    EXPECT_EQ(sizeOfView(Label("", "a")), (Size{23, 16}));
}

} // namespace kestrune::ui
