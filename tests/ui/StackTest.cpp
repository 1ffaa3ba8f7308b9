#include "tests/ui/LayoutFixture.h"

#include <limits>
#include <vector>

namespace kestrune::ui {

namespace {

class AStack : public LayoutFixture {
protected:
    // The origins and lengths of the elements along the horizontal axis: {x, width}.
    std::vector<std::pair<double, double>> columns(const View& view,
                                                   const ProposedSize& proposal = {}) const {
        std::vector<std::pair<double, double>> columns;
        for (const Element& element : render(view, proposal).scene.elements) {
            const Rect frame = std::visit([](const auto& placed) { return placed.frame; }, element);
            columns.emplace_back(frame.origin.x, frame.size.width);
        }
        return columns;
    }
};

using Columns = std::vector<std::pair<double, double>>;

View rectangle() { return RoundedRectangle({}); }

// Takes all the width that it is offered, and at least that.
View atLeast(double width) {
    return rectangle().frame({.minWidth = width, .maxWidth = std::numeric_limits<double>::infinity()});
}

} // namespace

TEST_F(AStack, OfNothingHasNoSize) {
    EXPECT_EQ(describeView(VStack({}, {})), "scene 0x0\n");
    EXPECT_EQ(describeView(HStack({.spacing = 20}, {}), {.width = 100, .height = 100}), "scene 0x0\n");
}

TEST_F(AStack, StandsViewsUnderOneAnother) {
    EXPECT_EQ(describeView(VStack({.spacing = 10}, {Box(30, 20), Box(50, 40), Box(10, 5)})),
              "scene 50x85\n"
              "  shape 10,0 30x20 primary\n"
              "  shape 0,30 50x40 primary\n"
              "  shape 20,80 10x5 primary\n");
}

TEST_F(AStack, StandsViewsBesideOneAnother) {
    EXPECT_EQ(describeView(HStack({.spacing = 10}, {Box(30, 20), Box(50, 40), Box(10, 4)})),
              "scene 110x40\n"
              "  shape 0,10 30x20 primary\n"
              "  shape 40,0 50x40 primary\n"
              "  shape 100,18 10x4 primary\n");
}

TEST_F(AStack, LeavesEightPointsBetweenViewsUnlessToldOtherwise) {
    EXPECT_EQ(sizeOfView(VStack({}, {Box(30, 20), Box(30, 20)})), (Size{30, 48}));
    EXPECT_EQ(sizeOfView(HStack({}, {Box(30, 20), Box(30, 20)})), (Size{68, 20}));
    EXPECT_EQ(sizeOfView(HStack({.spacing = 0}, {Box(30, 20), Box(30, 20)})), (Size{60, 20}));
}

TEST_F(AStack, LeavesNoSpaceAroundASingleView) {
    EXPECT_EQ(sizeOfView(VStack({.spacing = 10}, {Box(30, 20)})), (Size{30, 20}));
}

TEST_F(AStack, AlignsViewsAtTheirLeadingOrTrailingEdges) {
    const std::vector<View> boxes{Box(30, 20), Box(50, 20)};
    EXPECT_EQ(columns(VStack({.alignment = HorizontalAlignment::leading}, boxes)),
              (Columns{{0, 30}, {0, 50}}));
    EXPECT_EQ(columns(VStack({.alignment = HorizontalAlignment::trailing}, boxes)),
              (Columns{{20, 30}, {0, 50}}));
}

TEST_F(AStack, AlignsViewsAtTheirTopsOrBottoms) {
    const std::vector<View> boxes{Box(30, 20), Box(30, 50)};
    EXPECT_EQ(frameOf(HStack({.alignment = VerticalAlignment::top}, boxes), 0).origin.y, 0);
    EXPECT_EQ(frameOf(HStack({.alignment = VerticalAlignment::bottom}, boxes), 0).origin.y, 30);
}

TEST_F(AStack, OffersEqualSharesToViewsThatTakeAnything) {
    EXPECT_EQ(columns(HStack({.spacing = 10}, {rectangle(), rectangle()}), {.width = 110, .height = 20}),
              (Columns{{0, 50}, {60, 50}}));
}

TEST_F(AStack, FillsItsOfferToTheLastPoint) {
    EXPECT_EQ(columns(HStack({.spacing = 0}, {rectangle(), rectangle(), rectangle()}), {.width = 100}),
              (Columns{{0, 33}, {33, 33}, {66, 34}}));
}

TEST_F(AStack, ServesThoseFirstThatAdaptLeast) {
    // The box takes 30 of 100, the text 42 of its 50 (half of what is left), and the rectangle the rest.
    EXPECT_EQ(columns(HStack({.spacing = 0}, {rectangle(), Text("Finish"), Box(30, 10)}), {.width = 130}),
              (Columns{{0, 58}, {58, 42}, {100, 30}}));
}

TEST_F(AStack, OffersWhatOthersDidNotTakeToTheOnesAfter) {
    // An equal share of 100 is 50. The short text takes 14 of it, so that the long one has 86 and need not
    // wrap.
    EXPECT_EQ(columns(HStack({.spacing = 0}, {Text("The Dock"), Text("is")}), {.width = 100}),
              (Columns{{0, 56}, {56, 14}}));
}

TEST_F(AStack, WrapsATextInItsShare) {
    EXPECT_EQ(describeView(HStack({.spacing = 4}, {Box(20, 20), Text("The Dock stays")}), {.width = 84}),
              "scene 84x32\n"
              "  shape 0,6 20x20 primary\n"
              "  text 24,0 60x32 \"The Dock stays\" body\n");
}

TEST_F(AStack, ServesTheOneFirstThatNeedsMoreOfTwoThatTakeAnything) {
    EXPECT_EQ(columns(HStack({.spacing = 0}, {rectangle(), atLeast(80)}), {.width = 100}),
              (Columns{{0, 20}, {20, 80}}));
}

TEST_F(AStack, OffersNothingWhenNothingIsLeft) {
    EXPECT_EQ(columns(HStack({.spacing = 10}, {Box(80, 10), rectangle()}), {.width = 60}),
              (Columns{{0, 80}}));
    EXPECT_EQ(sizeOfView(HStack({.spacing = 10}, {Box(80, 10), rectangle()}), {.width = 60}), (Size{90, 10}));
}

TEST_F(AStack, OffersWhatItIsOfferedAcrossItsAxisToEveryView) {
    EXPECT_EQ(
        describeView(VStack({.spacing = 0}, {rectangle().frame({.height = 5}), Box(10, 5)}), {.width = 40}),
        "scene 40x10\n"
        "  shape 0,0 40x5 primary\n"
        "  shape 15,5 10x5 primary\n");
}

TEST_F(AStack, GivesEveryViewItsIdealSizeWhenNothingIsOffered) {
    EXPECT_EQ(sizeOfView(HStack({.spacing = 0}, {rectangle(), Text("The Dock stays")})), (Size{108, 16}));
}

TEST_F(AStack, InAStackIsServedByWhatItsViewsNeed) {
    // The inner stack needs 30 + 8 and can take any more: it is served after the text.
    const View inner = HStack({}, {Box(30, 10), rectangle()});
    EXPECT_EQ(columns(HStack({}, {inner, Text("Finish")}), {.width = 200}),
              (Columns{{0, 30}, {38, 112}, {158, 42}}));
}

TEST_F(AStack, TakesItsChildrenOneAfterTheOtherToo) {
    EXPECT_EQ(describeView(VStack({}, Box(10, 10), Box(20, 20), Box(30, 30))),
              describeView(VStack({}, {Box(10, 10), Box(20, 20), Box(30, 30)})));
    EXPECT_EQ(describeView(HStack({}, Box(10, 10))),
              describeView(HStack({}, std::vector<View>(1, Box(10, 10)))));
}

} // namespace kestrune::ui
