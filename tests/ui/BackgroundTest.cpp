#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class ABackground : public LayoutFixture {};

} // namespace

TEST_F(ABackground, LiesBehindAndIsAsLargeAsTheViewInFront) {
    EXPECT_EQ(describeView(Text("Finish").padding(4).background(RoundedRectangle({.fill = Color::accent})),
                           {.width = 300, .height = 300}),
              "scene 50x24\n"
              "  shape 0,0 50x24 accent\n"
              "  text 4,4 42x16 \"Finish\" body\n");
}

TEST_F(ABackground, OfASizeOfItsOwnIsAlignedAndDoesNotChangeTheSize) {
    EXPECT_EQ(describeView(Box(30, 20).background(Box(50, 10))), "scene 30x20\n"
                                                                 "  shape -10,5 50x10 primary\n"
                                                                 "  shape 0,0 30x20 primary\n");
    const Alignment corner{HorizontalAlignment::trailing, VerticalAlignment::bottom};
    EXPECT_EQ(frameOf(Box(30, 20).background(Box(10, 10), corner), 0), (Rect{20, 10, 10, 10}));
}

TEST_F(ABackground, CanHaveABackground) {
    const View behind =
        RoundedRectangle({}).padding(1).background(RoundedRectangle({.fill = Color::separator}));
    EXPECT_EQ(describeView(Box(30, 20).background(behind)), "scene 30x20\n"
                                                            "  shape 0,0 30x20 separator\n"
                                                            "  shape 1,1 28x18 primary\n"
                                                            "  shape 0,0 30x20 primary\n");
}

} // namespace kestrune::ui
