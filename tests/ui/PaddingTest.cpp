#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class APadding : public LayoutFixture {};

} // namespace

TEST_F(APadding, LiesAroundTheContent) {
    EXPECT_EQ(describeView(Box(30, 20).padding({.top = 1, .leading = 2, .bottom = 3, .trailing = 4})),
              "scene 36x24\n"
              "  shape 2,1 30x20 primary\n");
}

TEST_F(APadding, CanBeTheSameOnAllEdges) {
    EXPECT_EQ(describeView(Box(30, 20).padding(5)), "scene 40x30\n"
                                                    "  shape 5,5 30x20 primary\n");
}

TEST_F(APadding, OffersTheContentWhatItLeaves) {
    EXPECT_EQ(describeView(RoundedRectangle({}).padding(5), {.width = 40, .height = 30}),
              "scene 40x30\n"
              "  shape 5,5 30x20 primary\n");
    EXPECT_EQ(sizeOfView(RoundedRectangle({}).padding(5), {.width = 40}), (Size{40, 20}));
    EXPECT_EQ(sizeOfView(RoundedRectangle({}).padding(5), {.height = 40}), (Size{20, 40}));
}

TEST_F(APadding, OffersNothingWhenItLeavesNothing) {
    EXPECT_EQ(describeView(RoundedRectangle({}).padding(5), {.width = 8, .height = 8}), "scene 10x10\n");
}

TEST_F(APadding, WrapsATextInWhatItLeaves) {
    EXPECT_EQ(sizeOfView(Text("The Dock stays").padding(10), {.width = 80}), (Size{80, 52}));
}

TEST_F(APadding, ThatIsNegativeLetsTheContentStickOut) {
    EXPECT_EQ(describeView(VStack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                                  {Box(30, 20).padding({.top = 2, .bottom = -4}), Box(30, 20)})),
              "scene 30x38\n"
              "  shape 0,2 30x20 primary\n"
              "  shape 0,18 30x20 primary\n");
    EXPECT_EQ(describeView(Box(30, 20).padding({.leading = -5, .trailing = -5})),
              "scene 20x20\n"
              "  shape -5,0 30x20 primary\n");
}

TEST_F(APadding, ThatIsNegativeOffersTheContentMore) {
    EXPECT_EQ(describeView(RoundedRectangle({}).padding(-5), {.width = 40, .height = 30}),
              "scene 40x30\n"
              "  shape -5,-5 50x40 primary\n");
}

TEST_F(APadding, NeverMakesASizeNegative) { EXPECT_EQ(sizeOfView(Box(30, 20).padding(-50)), (Size{0, 0})); }

} // namespace kestrune::ui
