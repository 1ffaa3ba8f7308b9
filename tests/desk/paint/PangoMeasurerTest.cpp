#include "desk/paint/mac/ScenePainter.h"
#include "tests/desk/paint/PaintedCanvas.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace kestrune::desk {
namespace {

constexpr std::array TextStyles{
    ui::TextStyle::largeTitle, ui::TextStyle::title,   ui::TextStyle::title2,   ui::TextStyle::title3,
    ui::TextStyle::headline,   ui::TextStyle::body,    ui::TextStyle::callout,  ui::TextStyle::subheadline,
    ui::TextStyle::footnote,   ui::TextStyle::caption, ui::TextStyle::caption2,
};

ui::StyledText styled(const std::string& text, ui::TextStyle style = ui::TextStyle::body,
                      ui::FontWeight weight = ui::FontWeight::regular) {
    ui::StyledText result;
    result.runs = {{text, weight}};
    result.font = ui::Font::preferred(style);
    return result;
}

TEST(PangoMeasurer, MakesLinesAsHighAsTheirTextStyleSays) {
    const PangoMeasurer measurer;
    for (const ui::TextStyle style : TextStyles) {
        const double height = ui::lineHeight(style);
        EXPECT_NEAR(measurer.measureText(styled("Ågypq", style), std::nullopt).height, height, 0.01);
        EXPECT_NEAR(measurer.measureText(styled("", style), std::nullopt).height, height, 0.01);
        EXPECT_NEAR(measurer.measureText(styled("one\ntwo", style), std::nullopt).height, 2 * height, 0.01);
    }
}

TEST(PangoMeasurer, NeedsLineAfterLineForLessAndLessWidth) {
    const PangoMeasurer measurer;
    const ui::StyledText text = styled("The Dock stays exactly where you want it, on one display.");
    const Size ideal = measurer.measureText(text, std::nullopt);
    double before = ideal.height;
    for (double width = std::ceil(ideal.width); width >= 40; width -= 7) {
        const Size wrapped = measurer.measureText(text, width);
        EXPECT_LE(wrapped.width, width);
        EXPECT_GE(wrapped.height, before);
        EXPECT_NEAR(std::remainder(wrapped.height, 16), 0, 0.01);
        before = wrapped.height;
    }
    EXPECT_GE(before, 10 * 16);
}

TEST(PangoMeasurer, BreaksAWordThatIsTooLong) {
    const PangoMeasurer measurer;
    const Size size = measurer.measureText(styled("Barrierefreiheitsberechtigung"), 60);
    EXPECT_LE(size.width, 60);
    EXPECT_GT(size.height, 2 * 16);
}

TEST(PangoMeasurer, TakesEachRunInItsOwnWeight) {
    const PangoMeasurer measurer;
    const auto widthOf = [&](const ui::StyledText& text) {
        return measurer.measureText(text, std::nullopt).width;
    };
    double before = 0;
    for (int weight = 0; weight <= static_cast<int>(ui::FontWeight::black); ++weight) {
        const double width =
            widthOf(styled("minimum width", ui::TextStyle::body, static_cast<ui::FontWeight>(weight)));
        EXPECT_GT(width, before) << weight;
        before = width;
    }
    ui::StyledText mixed = styled("minimum ");
    mixed.runs.push_back({"width", ui::FontWeight::bold});
    EXPECT_GT(widthOf(mixed), widthOf(styled("minimum width")));
    EXPECT_LT(widthOf(mixed), widthOf(styled("minimum width", ui::TextStyle::body, ui::FontWeight::bold)));
}

TEST(PangoMeasurer, AnswersAlikeWhateverItMeasuredBefore) {
    const PangoMeasurer measurer;
    const ui::StyledText text = styled("Open System Settings", ui::TextStyle::callout);
    const Size first = measurer.measureText(text, 90);
    measurer.measureText(styled("wide", ui::TextStyle::largeTitle, ui::FontWeight::black), std::nullopt);
    EXPECT_EQ(measurer.measureText(text, 90), first);
}

TEST(PangoMeasurer, SurvivesIllFormedText) {
    const PangoMeasurer measurer;
    EXPECT_GT(measurer.measureText(styled("a\xC3\x28z"), std::nullopt).width, 10);
    EXPECT_EQ(measurer.measureText({}, std::nullopt).width, 0);
}

TEST(PangoMeasurer, KnowsTheSwitchesOfThePlatform) {
    const PangoMeasurer measurer;
    EXPECT_EQ(measurer.measureSwitch(ui::ControlSize::mini), (Size{26, 15}));
    EXPECT_EQ(measurer.measureSwitch(ui::ControlSize::small), (Size{32, 18}));
    EXPECT_EQ(measurer.measureSwitch(ui::ControlSize::regular), (Size{38, 22}));
}

TEST(PangoMeasurer, GrowsAPushButtonWithItsSizeAndTitle) {
    const PangoMeasurer measurer;
    Size before;
    for (const auto size :
         {ui::ControlSize::mini, ui::ControlSize::small, ui::ControlSize::regular, ui::ControlSize::large}) {
        const Size button = measurer.measurePushButton("Check for Updates…", size);
        EXPECT_GT(button.width, before.width);
        EXPECT_GT(button.height, before.height);
        EXPECT_LT(measurer.measurePushButton("OK", size).width, button.width);
        before = button;
    }
}

// The frame that the layout makes of a measurement: whole points, none smaller.
Rect frameOf(const PangoMeasurer& measurer, const ui::StyledText& text, std::optional<double> width) {
    const Size size = measurer.measureText(text, width);
    return {20, 20, std::ceil(size.width), std::ceil(size.height)};
}

TEST(PangoMeasurer, LeavesRoomForAllThatThePainterPaints) {
    const PangoMeasurer measurer;
    const std::array texts{
        std::string("Grant Accessibility permission"),
        std::string("macOS will show a permission dialog. Click Open System Settings in that dialog."),
        std::string("Ångström, Überprüfung der Bedienungshilfen-Berechtigung — jetzt gleich?"),
        std::string("fjord jQ ÿ ǰ, ¿qué? …"),
        std::string("コントロールを許可するには、システム設定を開きます。"),
        std::string("Разрешение получено"),
        std::string("first line\nsecond line"),
    };
    for (const std::string& words : texts) {
        for (const ui::TextStyle style : {ui::TextStyle::title, ui::TextStyle::title2, ui::TextStyle::body,
                                          ui::TextStyle::callout, ui::TextStyle::caption}) {
            for (const std::optional<double> width :
                 {std::optional<double>(), std::optional(412.0), std::optional(203.5), std::optional(97.0)}) {
                ui::StyledText text = styled(words, style, ui::FontWeight::semibold);
                const Rect frame = frameOf(measurer, text, width);
                const ui::Scene scene{{}, {ui::TextElement{frame, text}}};
                const PaintedCanvas painted{{frame.maxX() + 20, frame.maxY() + 20},
                                            [&](const Canvas& canvas) {
                                                paintScene(canvas, scene, {0, 0}, {});
                                            }};
                const auto ink = painted.ink();
                ASSERT_TRUE(ink) << words;
                // Letters such as j reach beyond their advance, and accents on capitals above a tight line.
                const double overhang = 1 + 0.1 * text.font.size;
                EXPECT_TRUE(encloses(frame, *ink, overhang)) << words << " at " << width.value_or(0);
                // As many lines are painted as were measured.
                EXPECT_GT(ink->maxY(), frame.maxY() - ui::lineHeight(style)) << words;
                EXPECT_GT(ink->width(), 0.5 * frame.width()) << words;
            }
        }
    }
}

} // namespace
} // namespace kestrune::desk
