#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class ASpacer : public LayoutFixture {};

} // namespace

TEST_F(ASpacer, TakesTheRoomThatIsLeftInItsStack) {
    EXPECT_EQ(describeView(HStack({}, {Spacer(), Box(30, 20)}), {.width = 200, .height = 100}),
              "scene 200x20\n"
              "  shape 170,0 30x20 primary\n");
    EXPECT_EQ(describeView(VStack({}, {Box(30, 20), Spacer(), Box(30, 20)}), {.width = 200, .height = 100}),
              "scene 30x100\n"
              "  shape 0,0 30x20 primary\n"
              "  shape 0,80 30x20 primary\n");
}

TEST_F(ASpacer, IsEightPointsLongWhenNothingIsOffered) {
    EXPECT_EQ(sizeOfView(HStack({.spacing = 0}, {Spacer(), Box(30, 20)})), (Size{38, 20}));
    EXPECT_EQ(sizeOfView(VStack({.spacing = 0}, {Spacer(), Box(30, 20)})), (Size{30, 28}));
}

TEST_F(ASpacer, TakesNoRoomAcrossItsStack) {
    EXPECT_EQ(sizeOfView(HStack({}, {Spacer(20)})), (Size{20, 0}));
    EXPECT_EQ(sizeOfView(VStack({}, {Spacer(20)})), (Size{0, 20}));
}

TEST_F(ASpacer, IsAtLeastAsLongAsItIsTold) {
    EXPECT_EQ(sizeOfView(HStack({.spacing = 0}, {Spacer(20), Box(30, 20)}), {.width = 40}), (Size{50, 20}));
    EXPECT_EQ(sizeOfView(HStack({.spacing = 0}, {Spacer(0), Box(30, 20)})), (Size{30, 20}));
}

TEST_F(ASpacer, LeavesATextAllButItsMinimumLength) {
    // 98 points for 14 letters, and 8 for the spacer: no line need break.
    const View row = HStack({.spacing = 0}, {Text("The Dock stays"), Spacer()});
    EXPECT_EQ(sizeOfView(row, {.width = 106}), (Size{106, 16}));
    EXPECT_EQ(sizeOfView(row, {.width = 105}), (Size{105, 32}));
}

TEST_F(ASpacer, SharesTheRoomWithOthers) {
    EXPECT_EQ(frameOf(HStack({.spacing = 0}, {Spacer(), Box(30, 20), Spacer()}), 0, {.width = 100}).origin.x,
              35);
    EXPECT_EQ(
        frameOf(HStack({.spacing = 0}, {Spacer(), Box(30, 20), Spacer(60)}), 0, {.width = 100}).origin.x, 10);
}

TEST_F(ASpacer, KeepsTheAxisOfItsStackInsideOtherViews) {
    EXPECT_EQ(
        sizeOfView(HStack({.spacing = 0}, {Spacer().padding(2), Box(30, 20)}), {.width = 100, .height = 90}),
        (Size{100, 20}));
}

TEST_F(ASpacer, TakesEverythingWithoutAStack) {
    EXPECT_EQ(describeView(Spacer(), {.width = 70, .height = 90}), "scene 70x90\n");
    EXPECT_EQ(describeView(Spacer()), "scene 8x8\n");
}

} // namespace kestrune::ui
