#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class MeasuringTexts : public LayoutFixture {};

// Draws its label when it is pressed as when it is not.
class PlainStyle final : public ButtonStyle {
public:
    View makeBody(const Configuration& configuration) const override { return configuration.label; }
};

// A measurer that wants to be offered at least a point.
class StrictMeasurer final : public Measurer {
public:
    Size measureText(const StyledText& /*text*/, std::optional<double> width) const override {
        EXPECT_GE(width.value_or(1), 1);
        return {width.value_or(100), 16};
    }
    Size measureSymbol(const StyledSymbol& /*symbol*/) const override { return {}; }
    Size measurePushButton(std::string_view /*title*/, ControlSize /*size*/) const override { return {}; }
    Size measureSwitch(ControlSize /*size*/) const override { return {}; }
};

} // namespace

TEST_F(MeasuringTexts, OnceIsEnoughForALineThatFits) {
    render(VStack({}, {Text("Finish").padding(4).frame({.width = 300})}));
    EXPECT_EQ(measurer.textMeasurements(), 1);
    render(Text("Finish"), {.width = 42});
    EXPECT_EQ(measurer.textMeasurements(), 2);
}

TEST_F(MeasuringTexts, TwiceIsEnoughForATextThatWraps) {
    render(VStack({}, {Text("The Dock stays").padding(4).frame({.width = 80})}));
    EXPECT_EQ(measurer.textMeasurements(), 2);
}

TEST_F(MeasuringTexts, NeedsNoMoreForWidthsInWhichTheLinesBreakAtTheSamePlaces) {
    // Offered 60, 56 and 58 points: "The Dock" takes 56 of each.
    const View text = Text("The Dock stays");
    render(VStack({}, {text.frame({.width = 60}), text.frame({.width = 56}), text.frame({.width = 58})}));
    EXPECT_EQ(measurer.textMeasurements(), 2);
}

TEST_F(MeasuringTexts, IsDoneAgainForANarrowerAndForAWiderOffer) {
    const View text = Text("The Dock stays");
    render(VStack({}, {text.frame({.width = 60}), text.frame({.width = 50}), text.frame({.width = 70})}));
    EXPECT_EQ(measurer.textMeasurements(), 4);
}

TEST_F(MeasuringTexts, IsDoneOnceForEqualTexts) {
    render(VStack({}, {Text("Finish"), Text("Finish").foregroundStyle(Color::green),
                       VerbatimText("Finish").multilineTextAlignment(TextAlignment::center)}));
    EXPECT_EQ(measurer.textMeasurements(), 1);
    render(VStack({}, {Text("Finish"), Text("Finish").fontWeight(FontWeight::bold), Text("Start")}));
    EXPECT_EQ(measurer.textMeasurements(), 4);
}

TEST_F(MeasuringTexts, IsDoneForEachFontOfEqualTexts) {
    const View text = Text("Finish");
    EXPECT_EQ(sizeOfView(VStack({.spacing = 0}, {text, text.font(Font::preferred(TextStyle::title))})),
              (Size{66, 42}));
}

TEST_F(MeasuringTexts, IsDoneOnceForBothStatesOfAButton) {
    render(Button("Finish", [] {}).buttonStyle(std::make_shared<PlainStyle>()));
    EXPECT_EQ(measurer.textMeasurements(), 1);
}

TEST_F(MeasuringTexts, AsksForNoWidthOfLessThanAPoint) {
    const StrictMeasurer strict;
    const LayoutContext strictContext{strict, context.localize, context.uppercase};
    const Rendering rendering = layOut(Text("Finish"), {.width = 0}, strictContext);
    EXPECT_EQ(rendering.scene.size, (Size{1, 16}));
}

} // namespace kestrune::ui
