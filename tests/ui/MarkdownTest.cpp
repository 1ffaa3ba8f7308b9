#include "ui/Markdown.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::ui {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

MarkdownPart plain(std::string text) { return {std::move(text), false}; }
MarkdownPart boldPart(std::string text) { return {std::move(text), true}; }

} // namespace

TEST(Markdown, OfATextWithoutMarksIsThatText) {
    EXPECT_THAT(parseMarkdown("Click here"), ElementsAre(plain("Click here")));
}

TEST(Markdown, PartsDifferByTheirTextsAndByTheirWeights) {
    EXPECT_NE(plain("a"), plain("b"));
    EXPECT_NE(plain("a"), boldPart("a"));
}

TEST(Markdown, OfNothingIsNothing) { EXPECT_THAT(parseMarkdown(""), IsEmpty()); }

TEST(Markdown, MakesAPartBetweenPairsOfAsterisksBold) {
    EXPECT_THAT(parseMarkdown("Click **Open** in it"),
                ElementsAre(plain("Click "), boldPart("Open"), plain(" in it")));
}

TEST(Markdown, MakesSeveralPartsBold) {
    EXPECT_THAT(parseMarkdown("**One** and **two**"),
                ElementsAre(boldPart("One"), plain(" and "), boldPart("two")));
}

TEST(Markdown, MakesAPartInTheMiddleOfAWordBold) {
    EXPECT_THAT(parseMarkdown("dis**play**s"), ElementsAre(plain("dis"), boldPart("play"), plain("s")));
}

TEST(Markdown, LeavesAMarkWithoutAPartner) {
    EXPECT_THAT(parseMarkdown("Click **Open"), ElementsAre(plain("Click **Open")));
    EXPECT_THAT(parseMarkdown("Click Open**"), ElementsAre(plain("Click Open**")));
    EXPECT_THAT(parseMarkdown("**A** and **b"), ElementsAre(boldPart("A"), plain(" and **b")));
    EXPECT_THAT(parseMarkdown("**"), ElementsAre(plain("**")));
}

TEST(Markdown, LeavesMarksThatTouchASpaceInside) {
    EXPECT_THAT(parseMarkdown("2 ** 3 ** 4"), ElementsAre(plain("2 ** 3 ** 4")));
    EXPECT_THAT(parseMarkdown("**\nA**"), ElementsAre(plain("**\nA**")));
    EXPECT_THAT(parseMarkdown("**A\t**"), ElementsAre(plain("**A\t**")));
}

TEST(Markdown, GoesOnToAMarkThatEndsThePart) {
    EXPECT_THAT(parseMarkdown("**2 ** 3**"), ElementsAre(boldPart("2 ** 3")));
}

TEST(Markdown, GoesOnAfterAMarkAndNotWithinIt) {
    EXPECT_THAT(parseMarkdown("**a ***"), ElementsAre(plain("**a ***")));
    EXPECT_THAT(parseMarkdown("**a **b**"), ElementsAre(boldPart("a **b")));
}

TEST(Markdown, TakesAMarkThatComesRightAfterAnother) {
    EXPECT_THAT(parseMarkdown("**One****Two**"), ElementsAre(boldPart("One"), boldPart("Two")));
    EXPECT_THAT(parseMarkdown("**One ****"), ElementsAre(boldPart("One **")));
}

TEST(Markdown, StartsAtAMarkThatBeginsAPart) {
    EXPECT_THAT(parseMarkdown("2 ** **3**"), ElementsAre(plain("2 ** "), boldPart("3")));
}

TEST(Markdown, LeavesMarksAroundNothing) {
    EXPECT_THAT(parseMarkdown("a****b"), ElementsAre(plain("a****b")));
}

TEST(Markdown, LeavesSingleAsterisks) {
    EXPECT_THAT(parseMarkdown("*One* * two"), ElementsAre(plain("*One* * two")));
}

} // namespace kestrune::ui
