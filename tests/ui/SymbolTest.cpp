#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class ASymbol : public LayoutFixture {};

// Letters and symbols that end between two points.
class ASymbolOfABrokenSize : public ASymbol {
protected:
    struct Broken final : Measurer {
        Size measureText(const StyledText& /*text*/, std::optional<double> /*width*/) const override {
            return {10.5, 16.2};
        }
        Size measureSymbol(const StyledSymbol& /*symbol*/) const override { return {15.2, 14.01}; }
        Size measurePushButton(std::string_view /*title*/, ControlSize /*size*/) const override {
            return {60.1, 22.5};
        }
        Size measureSwitch(ControlSize /*size*/) const override { return {37.7, 21.3}; }
    };

    const Broken broken{};
    const LayoutContext brokenContext{broken, context.localize, context.uppercase};
};

} // namespace

TEST_F(ASymbol, IsAsLargeAsItsFontSaysWhateverIsOffered) {
    EXPECT_EQ(describeView(SystemImage("circle.dashed")), "scene 16x16\n"
                                                          "  symbol 0,0 16x16 circle.dashed body\n");
    EXPECT_EQ(sizeOfView(SystemImage("circle.dashed"), {.width = 100, .height = 5}), (Size{16, 16}));
    EXPECT_EQ(sizeOfView(SystemImage("circle.dashed").font(Font::system(44))), (Size{53, 53}));
}

TEST_F(ASymbol, HasTheScaleOfItsPlace) {
    EXPECT_EQ(sizeOfView(SystemImage("circle.dashed").imageScale(ImageScale::large)), (Size{20, 20}));
    EXPECT_EQ(symbolOf(SystemImage("a").imageScale(ImageScale::small)).scale, ImageScale::small);
    EXPECT_EQ(symbolOf(SystemImage("a")).scale, ImageScale::medium);
}

TEST_F(ASymbolOfABrokenSize, IsRoundedUpToWholePointsAsEveryControlIs) {
    EXPECT_EQ(layOut(SystemImage("a"), {}, brokenContext).scene.size, (Size{16, 15}));
    EXPECT_EQ(layOut(Button("a", [] {}), {}, brokenContext).scene.size, (Size{61, 23}));
    EXPECT_EQ(layOut(Toggle("a", true, [](bool) {}), {}, brokenContext).scene.size, (Size{11 + 8 + 38, 22}));
}

} // namespace kestrune::ui
