// What shapes and grouped forms look like in a window.
#include "tests/contract/HostedViews.h"
#include "tests/contract/SeenColors.h"
#include "tests/contract/WindowFixture.h"
#include "ui/View.h"

namespace kestrune::contract {
namespace {

SeenColor behindEverything() { return over({}, ui::WindowBackground.light); }

using testing::Not;

class ShapesContract : public WindowFixture {
protected:
    void host(const ui::View& view) {
        HostingController controller({[view] { return view; }, std::make_shared<Counter>()});
        controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
        window_.setContentViewController(controller);
        show(window_);
    }

    void hostShape(const ui::RoundedRectangleOptions& options) {
        host(ui::RoundedRectangle(options).frame({.width = 200, .height = 160}));
    }

    SeenColor at(double x, double y) const { return world_.colorAt({x, y}); }

    Window window_ = makeWindow("one");
};

TEST_F(ShapesContract, FillTheirFrame) {
    hostShape({.fill = ui::Color::green});
    EXPECT_THAT(at(0, 0), Like(over(behindEverything(), ui::Color::green)));
    EXPECT_THAT(at(199, 159), Like(over(behindEverything(), ui::Color::green)));
}

TEST_F(ShapesContract, LetThroughWhatIsBehindThem) {
    for (const ui::Color color : {ui::Color::green, ui::Color::secondary}) {
        hostShape({.fill = color, .opacity = 0.5});
        ui::Shade half = ui::systemColor(color).light;
        half.alpha *= 0.5;
        EXPECT_THAT(at(100, 80), Like(over(behindEverything(), half)));
    }
}

// Where a quarter circle has reached the edge, a corner that eases into it has not.
TEST_F(ShapesContract, HaveCircularCorners) {
    const SeenColor accent = over(behindEverything(), ui::Color::accent);
    hostShape({.cornerRadius = 40, .fill = ui::Color::accent});
    EXPECT_THAT(at(8, 8), Like(behindEverything()));
    EXPECT_THAT(at(14, 14), Like(accent));
    EXPECT_THAT(at(45, 0), Like(accent));
    EXPECT_THAT(at(0, 45), Like(accent));
}

TEST_F(ShapesContract, HaveContinuousCorners) {
    const SeenColor accent = over(behindEverything(), ui::Color::accent);
    hostShape({.cornerRadius = 40, .cornerStyle = ui::CornerStyle::continuous, .fill = ui::Color::accent});
    EXPECT_THAT(at(8, 8), Like(behindEverything()));
    EXPECT_THAT(at(14, 14), Like(accent));
    for (const SeenColor& eased : {at(45, 0), at(0, 45), at(154, 159), at(199, 114)}) {
        EXPECT_THAT(eased, Not(Like(accent)));
        EXPECT_THAT(eased, Not(Like(behindEverything())));
    }
    EXPECT_THAT(at(62, 0), Like(accent));
}

TEST_F(ShapesContract, DrawALineAlongTheInsideOfTheirEdge) {
    hostShape({.fill = ui::Color::green, .lineWidth = 4});
    const SeenColor green = over(behindEverything(), ui::Color::green);
    EXPECT_THAT(at(0, 80), Like(green));
    EXPECT_THAT(at(3, 80), Like(green));
    EXPECT_THAT(at(4, 80), Like(behindEverything()));
    EXPECT_THAT(at(100, 159), Like(green));
    EXPECT_THAT(at(100, 80), Like(behindEverything()));
}

TEST_F(ShapesContract, OfAGroupedFormAreAFaintFillWithABorderOverIt) {
    host(ui::Form({ui::Section({ui::Text("row")})}).formStyle(ui::FormStyle::grouped).frame({.width = 240}));
    const SeenColor fill = over(behindEverything(), ui::Color::sectionFill);
    const SeenColor border = over(fill, ui::Color::sectionBorder);
    EXPECT_THAT(at(10, 38), Like(behindEverything()));
    EXPECT_THAT(at(20, 38), Like(border));
    EXPECT_THAT(at(21, 38), Like(fill));
    EXPECT_THAT(at(25, 38), Like(fill));
    EXPECT_THAT(at(219, 38), Like(border));
    EXPECT_THAT(at(220, 38), Like(behindEverything()));
    EXPECT_THAT(border, Not(Like(fill)));
    EXPECT_THAT(fill, Not(Like(behindEverything())));
}

} // namespace
} // namespace kestrune::contract
