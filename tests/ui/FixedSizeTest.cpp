#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class AFixedSize : public LayoutFixture {};

} // namespace

TEST_F(AFixedSize, IsTheIdealOneWhateverIsOffered) {
    EXPECT_EQ(sizeOfView(RoundedRectangle({}).fixedSize(), {.width = 100, .height = 100}), (Size{10, 10}));
    EXPECT_EQ(sizeOfView(Text("The Dock stays").fixedSize(), {.width = 60}), (Size{98, 16}));
}

TEST_F(AFixedSize, CanBeFixedInOneDirection) {
    const View rectangle = RoundedRectangle({});
    EXPECT_EQ(sizeOfView(rectangle.fixedSize(true, false), {.width = 100, .height = 100}), (Size{10, 100}));
    EXPECT_EQ(sizeOfView(rectangle.fixedSize(false, true), {.width = 100, .height = 100}), (Size{100, 10}));
    EXPECT_EQ(sizeOfView(rectangle.fixedSize(false, false), {.width = 100, .height = 100}), (Size{100, 100}));
    EXPECT_EQ(frameOf(rectangle.fixedSize(false, true), 0, {.width = 50, .height = 50}),
              (Rect{0, 0, 50, 10}));
}

} // namespace kestrune::ui
