#include "desk/paint/mac/ScenePainter.h"

#include "tests/desk/paint/PaintedCanvas.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <array>

namespace kestrune::desk {
namespace {

PaintedCanvas painted(const ui::Scene& scene, const SceneState& state = {}, bool dark = false,
                      double scale = 1) {
    return {scene.size, [&](const Canvas& canvas) { paintScene(canvas, scene, {0, 0}, state); }, dark, scale};
}

// Where two paintings of one size differ.
std::optional<Rect> difference(const PaintedCanvas& one, const PaintedCanvas& other, Size size) {
    std::optional<Rect> result;
    Edges edges{size.width, size.height, -1, -1};
    for (double y = 0; y < size.height; ++y) {
        for (double x = 0; x < size.width; ++x) {
            if (!(one.at({x, y}) == other.at({x, y}))) {
                edges = {std::min(edges.minX, x), std::min(edges.minY, y), std::max(edges.maxX, x + 1),
                         std::max(edges.maxY, y + 1)};
                result = Rect(edges.minX, edges.minY, edges.maxX - edges.minX, edges.maxY - edges.minY);
            }
        }
    }
    return result;
}

Rect grown(const Rect& rect, double distance) {
    return {rect.minX() - distance, rect.minY() - distance, rect.width() + 2 * distance,
            rect.height() + 2 * distance};
}

constexpr Point InMainFill{128, 66}; // beside the label

TEST(ScenePainter, FillsTheMainButtonWithTheAccentColourAndDimsItsFillWhileItIsPressed) {
    const ui::Scene scene = sceneWithControls();
    EXPECT_TRUE(isNear(painted(scene).at(InMainFill), 0x00, 0x7A, 0xFF, 1));
    // Three quarters of the accent colour over white.
    const SceneState pressed{.pressedElement = Main};
    EXPECT_TRUE(isNear(painted(scene, pressed).at(InMainFill), 0x40, 0x9B, 0xFF, 2));
    EXPECT_TRUE(isNear(painted(scene, {}, true).at(InMainFill), 0x0A, 0x84, 0xFF, 1));
    EXPECT_TRUE(isNear(painted(scene, pressed, true).at(InMainFill), 0x08, 0x63, 0xBF, 2));
}

TEST(ScenePainter, KeepsThePressedButtonsLabelAsWhiteAsItWas) {
    ui::Scene scene = sceneWithControls();
    const auto brightest = [&](const SceneState& state) {
        const PaintedCanvas canvas = painted(scene, state, true, 3);
        int value = 0;
        for (double x = 136; x < 254; x += 0.34) {
            for (double y = 58; y < 74; y += 0.34) {
                value = std::max(value, canvas.at({x, y}).red);
            }
        }
        return value;
    };
    EXPECT_GE(brightest({}), 254);
    EXPECT_GE(brightest({.pressedElement = Main}), 254);
}

TEST(ScenePainter, PaintsASwitchWhoseKnobIsUnderWay) {
    const ui::Scene scene = sceneWithControls();
    const auto moved = [&scene](double position, std::size_t element = Switch) {
        return painted(scene, {.movingSwitch = MovingSwitch{element, position}});
    };
    constexpr Point KnobOff{31, 111};
    constexpr Point KnobHalfway{39, 111};
    constexpr Point KnobOn{47, 111};
    const auto isKnob = [](const PaintedCanvas& canvas, Point place) {
        return isNear(canvas.at(place), 0xFF, 0xFF, 0xFF, 1);
    };
    EXPECT_TRUE(isKnob(moved(0), KnobOff));
    EXPECT_FALSE(isKnob(moved(0), KnobOn));
    EXPECT_TRUE(isKnob(moved(0.5), KnobHalfway));
    EXPECT_FALSE(difference(moved(1), painted(scene), scene.size)) << "the switch is on";
    EXPECT_FALSE(difference(moved(0, Push), painted(scene), scene.size));
    // The track's colour is on its way, too.
    constexpr Point BeforeKnob{25, 111};
    constexpr Point BehindKnob{53, 111};
    EXPECT_GT(moved(0).at(BehindKnob).red, moved(0.5).at(BehindKnob).red);
    EXPECT_GT(moved(0.5).at(BeforeKnob).red, moved(1).at(BeforeKnob).red);
}

TEST(ScenePainter, ChangesThePressedControlOnly) {
    const ui::Scene scene = sceneWithControls();
    const PaintedCanvas atRest = painted(scene);
    const std::array controls{std::pair(Link, Rect(20, 60, 70, 16)), std::pair(Main, Rect(120, 50, 150, 32)),
                              std::pair(Switch, Rect(20, 100, 38, 22)),
                              std::pair(Push, Rect(20, 150, 90, 22))};
    for (const auto& [element, frame] : controls) {
        const auto changed = difference(painted(scene, {.pressedElement = element}), atRest, scene.size);
        ASSERT_TRUE(changed) << element;
        EXPECT_TRUE(encloses(frame, *changed, 1)) << element;
    }
    EXPECT_FALSE(difference(painted(scene, {.pressedElement = Sentence}), atRest, scene.size));
    EXPECT_FALSE(difference(painted(scene, {.pressedElement = 99}), atRest, scene.size));
}

TEST(ScenePainter, RingsTheFocusedControlInTheKeyWindow) {
    const ui::Scene scene = sceneWithControls();
    const PaintedCanvas atRest = painted(scene);
    for (const auto& [element, frame] :
         {std::pair(Main, Rect(120, 50, 150, 32)), std::pair(Switch, Rect(20, 100, 38, 22)),
          std::pair(Push, Rect(20, 150, 90, 22)), std::pair(Link, Rect(20, 60, 70, 16))}) {
        const auto changed = difference(painted(scene, {.focusedElement = element}), atRest, scene.size);
        ASSERT_TRUE(changed) << element;
        EXPECT_TRUE(encloses(*changed, grown(frame, 2))) << element;
        EXPECT_TRUE(encloses(grown(frame, 6), *changed)) << element;
    }
    EXPECT_TRUE(painted(scene, {.focusedElement = Main}).at(InMainFill) == atRest.at(InMainFill));
    EXPECT_FALSE(difference(painted(scene, {.focusedElement = Sentence}), atRest, scene.size));
    EXPECT_FALSE(difference(painted(scene, {.focusedElement = 99}), atRest, scene.size));
    EXPECT_FALSE(difference(painted(scene, {.focusedElement = Main, .isInKeyWindow = false}),
                            painted(scene, {.isInKeyWindow = false}), scene.size));
}

TEST(ScenePainter, TakesTheColourFromSwitchesAndTheDefaultButtonInTheBackground) {
    ui::Scene scene = sceneWithControls();
    std::get<ui::ButtonElement>(scene.elements[Push]).shortcut = ui::KeyboardShortcut::defaultAction;
    const auto isBlue = [](Pixel pixel) { return pixel.blue > pixel.red + 100; };
    constexpr Point InSwitch{26, 111};
    constexpr Point InPush{26, 168};
    EXPECT_TRUE(isBlue(painted(scene).at(InSwitch)));
    EXPECT_TRUE(isBlue(painted(scene).at(InPush)));
    const PaintedCanvas behind = painted(scene, {.isInKeyWindow = false});
    EXPECT_FALSE(isBlue(behind.at(InSwitch)));
    EXPECT_FALSE(isBlue(behind.at(InPush)));
    // What an application draws itself is its own affair.
    EXPECT_TRUE(isBlue(behind.at(InMainFill)));
}

TEST(ScenePainter, RoundsCornersAsTheyAreDescribed) {
    const auto cornerOf = [](ui::CornerStyle style, double radius) {
        const ui::Scene scene{{100, 100}, {ui::ShapeElement{{10, 10, 80, 80}, radius, style}}};
        const PaintedCanvas canvas = painted(scene, {}, false, 4);
        int white = 0;
        for (double x = 10.125; x < 50; x += 0.25) {
            for (double y = 10.125; y < 50; y += 0.25) {
                white += canvas.at({x, y}).red > 250 ? 1 : 0;
            }
        }
        return white / 16.0; // square points
    };
    EXPECT_EQ(cornerOf(ui::CornerStyle::circular, 0), 0);
    EXPECT_EQ(cornerOf(ui::CornerStyle::continuous, 0), 0);
    // What a quarter circle leaves of its square.
    EXPECT_NEAR(cornerOf(ui::CornerStyle::circular, 20), 0.2146 * 400, 6);
    EXPECT_GT(cornerOf(ui::CornerStyle::continuous, 20), cornerOf(ui::CornerStyle::circular, 20));
    EXPECT_LT(cornerOf(ui::CornerStyle::continuous, 20), 1.35 * cornerOf(ui::CornerStyle::circular, 20));
}

TEST(ScenePainter, FillsShapesWithTheirOpacity) {
    const ui::Scene scene{
        {40, 40}, {ui::ShapeElement{{0, 0, 40, 40}, 0, ui::CornerStyle::circular, ui::Color::green, 0.5}}};
    EXPECT_TRUE(isNear(painted(scene).at({20, 20}), 0x94, 0xE6, 0xA0, 2));
}

TEST(ScenePainter, AlignsTextInItsFrame) {
    ui::StyledText text;
    text.runs = {{"Dock", ui::FontWeight::regular}};
    const auto inkOf = [&](ui::TextAlignment alignment) {
        text.alignment = alignment;
        const ui::Scene scene{{240, 40}, {ui::TextElement{{20, 10, 200, 16}, text}}};
        return *painted(scene).ink();
    };
    EXPECT_NEAR(inkOf(ui::TextAlignment::leading).minX(), 20, 2);
    const Rect centered = inkOf(ui::TextAlignment::center);
    EXPECT_NEAR(centered.minX() + centered.width() / 2, 120, 1.5);
    EXPECT_NEAR(inkOf(ui::TextAlignment::trailing).maxX(), 220, 2);
}

TEST(ScenePainter, PaintsTheSceneWhereItIsToldTo) {
    const ui::Scene scene{{40, 20}, {ui::ShapeElement{{5, 5, 10, 10}}}};
    const PaintedCanvas canvas{{100, 100}, [&](const Canvas& paper) {
                                   paintScene(paper, scene, {50, 60}, {});
                               }};
    EXPECT_EQ(*canvas.ink(), Rect(55, 65, 10, 10));
}

TEST(SceneColors, AreThoseOfThePlatform) {
    for (std::size_t index = 0; index < ui::SystemColors.size(); ++index) {
        const auto color = static_cast<ui::Color>(index);
        const ui::SystemColor& ofTheSystem = ui::systemColor(color);
        EXPECT_EQ(sceneColor(paletteFor(false), color), rgb(ofTheSystem.light)) << index;
        EXPECT_EQ(sceneColor(paletteFor(true), color), rgb(ofTheSystem.dark)) << index;
    }
}

} // namespace
} // namespace kestrune::desk
