#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class ARoundedRectangle : public LayoutFixture {};

} // namespace

TEST_F(ARoundedRectangle, IsAsLargeAsWhatIsOffered) {
    EXPECT_EQ(sizeOfView(RoundedRectangle({}), {.width = 70, .height = 90}), (Size{70, 90}));
    EXPECT_EQ(sizeOfView(RoundedRectangle({}), {.width = 70.9, .height = 0.5}), (Size{70, 0}));
}

TEST_F(ARoundedRectangle, IsTenPointsLargeWhereNothingIsOffered) {
    EXPECT_EQ(sizeOfView(RoundedRectangle({})), (Size{10, 10}));
    EXPECT_EQ(sizeOfView(RoundedRectangle({}), {.width = 70}), (Size{70, 10}));
}

TEST_F(ARoundedRectangle, IsShownAsItIsDescribed) {
    const View view = RoundedRectangle({6, CornerStyle::continuous, Color::accent, 0.75, 2});
    const ShapeElement expected{{0, 0, 10, 10}, 6, CornerStyle::continuous, Color::accent, 0.75, 2};
    EXPECT_EQ(std::get<ShapeElement>(render(view).scene.elements.at(0)), expected);
}

TEST_F(ARoundedRectangle, WithoutASizeIsNotShown) {
    EXPECT_EQ(describeView(RoundedRectangle({}), {.width = 0, .height = 30}), "scene 0x30\n");
}

} // namespace kestrune::ui
