#include "tests/ui/LayoutFixture.h"

#include <gmock/gmock.h>

namespace kestrune::ui {

using testing::ElementsAre;

namespace {

class ATextView : public LayoutFixture {};

// Letters of 7.7 points in lines of 17.6.
class ATextInLettersOfBrokenSizes : public LayoutFixture {
protected:
    ATextInLettersOfBrokenSizes() : LayoutFixture(1.1) {}
};

TextRun regular(std::string text) { return {std::move(text), FontWeight::regular}; }
TextRun bold(std::string text) { return {std::move(text), FontWeight::bold}; }

} // namespace

TEST_F(ATextView, IsAsLargeAsItsLine) {
    EXPECT_EQ(describeView(Text("Finish")), "scene 42x16\n"
                                            "  text 0,0 42x16 \"Finish\" body\n");
}

TEST_F(ATextView, IsNoLargerThanItsLineWhateverItIsOffered) {
    EXPECT_EQ(sizeOfView(Text("Finish"), {.width = 300, .height = 300}), (Size{42, 16}));
    EXPECT_EQ(sizeOfView(Text("Finish"), {.width = 42, .height = 16}), (Size{42, 16}));
}

TEST_F(ATextView, WrapsAtTheWidthThatItIsOffered) {
    // "The Dock" and "stays": 8 letters fit into 60 points, and no more.
    EXPECT_EQ(sizeOfView(Text("The Dock stays"), {.width = 60}), (Size{60, 32}));
    EXPECT_EQ(sizeOfView(Text("The Dock stays"), {.width = 55}), (Size{55, 48}));
}

TEST_F(ATextView, TakesTheHeightOfItsLinesHoweverLittleItIsOffered) {
    EXPECT_EQ(sizeOfView(Text("The Dock stays"), {.width = 60, .height = 16}), (Size{60, 32}));
}

TEST_F(ATextView, IsAsWideAsItsLongestWordHoweverLittleItIsOffered) {
    EXPECT_EQ(sizeOfView(Text("The Dock stays"), {.width = 0}), (Size{35, 48}));
    EXPECT_EQ(sizeOfView(Text("The Dock stays"), {.width = -20}), (Size{35, 48}));
}

TEST_F(ATextView, HasALineForEachParagraph) {
    EXPECT_EQ(sizeOfView(Text("The Dock\nstays\n\nhere")), (Size{56, 64}));
}

TEST_F(ATextView, WithoutLettersHasNoSizeAndNoElement) {
    EXPECT_EQ(describeView(Text("")), "scene 0x0\n");
    EXPECT_EQ(describeView(VerbatimText(""), {.width = 100, .height = 100}), "scene 0x0\n");
    EXPECT_EQ(measurer.textMeasurements(), 0);
}

TEST_F(ATextInLettersOfBrokenSizes, IsRoundedUpToWholePoints) {
    EXPECT_EQ(sizeOfView(Text("Finish")), (Size{47, 18}));
    EXPECT_EQ(sizeOfView(Text("Finish"), {.width = 47}), (Size{47, 18}));
}

TEST_F(ATextInLettersOfBrokenSizes, WrapsWhenItIsOfferedAPartOfItsLastPoint) {
    EXPECT_EQ(sizeOfView(Text("The Dock"), {.width = 61.9}), (Size{61, 36}));
    EXPECT_EQ(sizeOfView(Text("The Dock"), {.width = 62}), (Size{62, 18}));
}

TEST_F(ATextView, ShowsWhatItsKeyIsTranslatedTo) {
    translations["Finish"] = "Fertig";
    EXPECT_THAT(textOf(Text("Finish")).runs, ElementsAre(regular("Fertig")));
}

TEST_F(ATextView, FillsItsArgumentsIntoTheTranslation) {
    translations["Step %@ of %@"] = "%2$@ steps, this is %1$@";
    EXPECT_EQ(textOf(Text("Step %@ of %@", {"1", "2"})).string(), "2 steps, this is 1");
}

TEST_F(ATextView, FindsMarkdownInTheTranslation) {
    translations["Click **Open**."] = "**Öffnen** klicken.";
    EXPECT_THAT(textOf(Text("Click **Open**.")).runs, ElementsAre(bold("Öffnen"), regular(" klicken.")));
}

TEST_F(ATextView, IsWiderWhereItIsBold) {
    EXPECT_EQ(sizeOfView(Text("**Open** it")), (Size{4 * 8 + 3 * 7, 16}));
}

TEST_F(ATextView, ShowsArgumentsAsTheyAre) {
    EXPECT_THAT(textOf(Text("Use **%@** on %@", {"**a**", "**b**"})).runs,
                ElementsAre(regular("Use "), bold("**a**"), regular(" on **b**")));
}

TEST_F(ATextView, HasNoRunForAnEmptyArgument) {
    EXPECT_THAT(textOf(Text("**a****%@** b**%@**c", {"", ""})).runs, ElementsAre(bold("a"), regular(" bc")));
}

TEST_F(ATextView, ThatIsBoldThroughoutIsOneRun) {
    EXPECT_THAT(textOf(Text("**Open** it").fontWeight(FontWeight::bold)).runs, ElementsAre(bold("Open it")));
}

TEST_F(ATextView, KeepsItsWeightBesideBoldParts) {
    EXPECT_THAT(textOf(Text("**Open** it").fontWeight(FontWeight::light)).runs,
                ElementsAre(bold("Open"), TextRun{" it", FontWeight::light}));
}

TEST_F(ATextView, IsShownInUpperCaseWithItsArgumentsOnRequest) {
    EXPECT_THAT(textOf(Text("Step **%@**", {"two"}).textCase(TextCase::uppercase)).runs,
                ElementsAre(regular("STEP "), bold("TWO")));
}

TEST_F(ATextView, VerbatimIsNeitherTranslatedNorParsed) {
    translations["Finish **%@**"] = "Fertig";
    EXPECT_THAT(textOf(VerbatimText("Finish **%@**")).runs, ElementsAre(regular("Finish **%@**")));
}

TEST_F(ATextView, VerbatimIsShownInUpperCaseOnRequest) {
    EXPECT_EQ(textOf(VerbatimText("Step 2").textCase(TextCase::uppercase)).string(), "STEP 2");
}

TEST_F(ATextView, LiesOnWholePoints) {
    // Half of the 1 and of the 1.5 free points.
    const View framed = Text("Finish").frame({.width = 43, .height = 19});
    EXPECT_EQ(frameOf(framed, 0), (Rect{1, 2, 42, 16}));
    EXPECT_EQ(frameOf(Text("Finish").padding(0.4), 0), (Rect{0, 0, 42, 16}));
}

} // namespace kestrune::ui
