#include "tests/base/UnusualNumbers.h"
#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class AFrame : public LayoutFixture {};

} // namespace

TEST_F(AFrame, ThatIsFixedHasItsSizeWhateverIsOffered) {
    const View framed = Text("Finish").frame({.width = 100, .height = 50});
    EXPECT_EQ(sizeOfView(framed), (Size{100, 50}));
    EXPECT_EQ(sizeOfView(framed, {.width = 20, .height = 400}), (Size{100, 50}));
}

TEST_F(AFrame, ThatIsFixedOffersItsSizeToTheContent) {
    EXPECT_EQ(frameOf(RoundedRectangle({}).frame({.width = 100, .height = 50}), 0), (Rect{0, 0, 100, 50}));
    EXPECT_EQ(frameOf(Text("The Dock stays").frame({.width = 60}), 0), (Rect{0, 0, 60, 32}));
}

TEST_F(AFrame, ThatIsFixedInOneDirectionLeavesTheOtherToTheContent) {
    EXPECT_EQ(sizeOfView(RoundedRectangle({}).frame({.width = 100}), {.height = 70}), (Size{100, 70}));
    EXPECT_EQ(sizeOfView(RoundedRectangle({}).frame({.height = 50}), {.width = 70}), (Size{70, 50}));
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.width = 100})), (Size{100, 20}));
}

TEST_F(AFrame, OfNothingIsTheContentsSize) {
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({}), {.width = 100, .height = 100}), (Size{30, 20}));
}

TEST_F(AFrame, LetsLargerContentStickOut) {
    EXPECT_EQ(describeView(Box(30, 20).frame({.width = 10, .height = 10})), "scene 10x10\n"
                                                                            "  shape -10,-5 30x20 primary\n");
}

TEST_F(AFrame, AlignsItsContent) {
    const auto origin = [&](HorizontalAlignment horizontal, VerticalAlignment vertical) {
        return frameOf(Box(30, 20).frame({.width = 100, .height = 50, .alignment = {horizontal, vertical}}),
                       0)
            .origin;
    };
    EXPECT_EQ(origin(HorizontalAlignment::leading, VerticalAlignment::top), (Point{0, 0}));
    EXPECT_EQ(origin(HorizontalAlignment::center, VerticalAlignment::center), (Point{35, 15}));
    EXPECT_EQ(origin(HorizontalAlignment::trailing, VerticalAlignment::bottom), (Point{70, 30}));
}

TEST_F(AFrame, WithAnInfiniteMaximumTakesWhatIsOffered) {
    const View wide = Box(30, 20).frame({.maxWidth = Infinity});
    EXPECT_EQ(describeView(wide, {.width = 100, .height = 100}), "scene 100x20\n"
                                                                 "  shape 35,0 30x20 primary\n");
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.maxHeight = Infinity}), {.width = 100, .height = 90}),
              (Size{30, 90}));
}

TEST_F(AFrame, WithAnInfiniteMaximumIsAsLargeAsItsContentWhenNothingIsOffered) {
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.maxWidth = Infinity, .maxHeight = Infinity})), (Size{30, 20}));
}

TEST_F(AFrame, WithAMaximumIsNoSmallerThanItsContent) {
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.maxWidth = Infinity}), {.width = 10}), (Size{30, 20}));
}

TEST_F(AFrame, WithAMaximumTakesNoMoreThanThat) {
    const View framed = RoundedRectangle({}).frame({.maxWidth = 50});
    EXPECT_EQ(sizeOfView(framed, {.width = 40}), (Size{40, 10}));
    EXPECT_EQ(sizeOfView(framed, {.width = 100}), (Size{50, 10}));
    EXPECT_EQ(sizeOfView(Box(80, 20).frame({.maxWidth = 50}), {.width = 100}), (Size{50, 20}));
    EXPECT_EQ(sizeOfView(Box(80, 20).frame({.maxWidth = 50})), (Size{50, 20}));
}

TEST_F(AFrame, WithAMinimumIsNoSmallerThanThat) {
    const View framed = RoundedRectangle({}).frame({.minWidth = 50});
    EXPECT_EQ(sizeOfView(framed), (Size{50, 10}));
    EXPECT_EQ(frameOf(framed, 0, {.width = 40}), (Rect{0, 0, 50, 10}));
    EXPECT_EQ(sizeOfView(framed, {.width = 100}), (Size{100, 10}));
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.minWidth = 50}), {.width = 100}), (Size{50, 20}));
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.minHeight = 50})), (Size{30, 50}));
}

TEST_F(AFrame, WithAMinimumLetsLargerContentStickOutWhereLessIsOffered) {
    EXPECT_EQ(describeView(Box(80, 20).frame({.minWidth = 50}), {.width = 60}),
              "scene 60x20\n"
              "  shape -10,0 80x20 primary\n");
}

TEST_F(AFrame, WithBothBoundsTakesWhatIsOfferedBetweenThem) {
    const View framed = Box(30, 20).frame({.minWidth = 40, .maxWidth = 80});
    EXPECT_EQ(sizeOfView(framed), (Size{40, 20}));
    EXPECT_EQ(sizeOfView(framed, {.width = 60}), (Size{60, 20}));
    EXPECT_EQ(sizeOfView(framed, {.width = 100}), (Size{80, 20}));
}

TEST_F(AFrame, TakesWholePoints) {
    EXPECT_EQ(sizeOfView(Box(30, 20).frame({.width = 40.2, .height = 30.9})), (Size{41, 31}));
}

} // namespace kestrune::ui
