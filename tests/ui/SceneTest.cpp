#include "ui/Scene.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace kestrune::ui {

namespace {

// Equal as long as nothing is changed; different after any one of the changes.
template <typename Described>
void expectToDifferByEach(const std::vector<std::function<void(Described&)>>& changes) {
    EXPECT_EQ(Described{}, Described{});
    for (const auto& change : changes) {
        Described changed;
        change(changed);
        EXPECT_FALSE(changed == Described{});
    }
}

// As above, as an element of a scene.
template <typename Placed>
void expectScenesToDifferByEach(const std::vector<std::function<void(Placed&)>>& changes) {
    const Scene scene{{1, 1}, {Placed{}}};
    EXPECT_EQ(scene, (Scene{{1, 1}, {Placed{}}}));
    for (const auto& change : changes) {
        Placed changed;
        change(changed);
        EXPECT_NE(scene, (Scene{{1, 1}, {changed}}));
    }
}

} // namespace

TEST(Scene, DiffersByItsSizeAndItsElements) {
    expectToDifferByEach<Scene>({
        [](Scene& scene) { scene.size.width = 1; },
        [](Scene& scene) { scene.size.height = 1; },
        [](Scene& scene) { scene.elements.emplace_back(ShapeElement{}); },
    });
    EXPECT_NE((Scene{{1, 1}, {ShapeElement{}}}), (Scene{{1, 1}, {TextElement{}}}));
}

TEST(Scene, DiffersByEverythingOfAText) {
    expectScenesToDifferByEach<TextElement>({
        [](TextElement& text) { text.frame.origin.x = 1; },
        [](TextElement& text) {
            text.text.runs = {{"a", FontWeight::regular}};
        },
        [](TextElement& text) { text.text.font.size = 14; },
        [](TextElement& text) { text.text.font.weight = FontWeight::bold; },
        [](TextElement& text) { text.text.font.style = TextStyle::callout; },
        [](TextElement& text) { text.text.color = Color::secondary; },
        [](TextElement& text) { text.text.alignment = TextAlignment::trailing; },
        [](TextElement& text) { text.isAccessibilityHidden = true; },
    });
}

TEST(Scene, DiffersByTheRunsOfAText) {
    expectToDifferByEach<TextRun>({
        [](TextRun& run) { run.text = "a"; },
        [](TextRun& run) { run.weight = FontWeight::bold; },
    });
}

TEST(Scene, DiffersByEverythingOfASymbol) {
    expectScenesToDifferByEach<SymbolElement>({
        [](SymbolElement& symbol) { symbol.frame.origin.y = 1; },
        [](SymbolElement& symbol) { symbol.symbol.name = "a"; },
        [](SymbolElement& symbol) { symbol.symbol.font.size = 14; },
        [](SymbolElement& symbol) { symbol.symbol.scale = ImageScale::large; },
        [](SymbolElement& symbol) { symbol.symbol.color = Color::green; },
    });
}

TEST(Scene, DiffersByEverythingOfAShape) {
    expectScenesToDifferByEach<ShapeElement>({
        [](ShapeElement& shape) { shape.frame.size.width = 1; },
        [](ShapeElement& shape) { shape.cornerRadius = 6; },
        [](ShapeElement& shape) { shape.cornerStyle = CornerStyle::continuous; },
        [](ShapeElement& shape) { shape.fill = Color::accent; },
        [](ShapeElement& shape) { shape.opacity = 0.75; },
        [](ShapeElement& shape) { shape.lineWidth = 1; },
    });
}

TEST(Scene, DiffersByEverythingOfAButton) {
    expectScenesToDifferByEach<ButtonElement>({
        [](ButtonElement& button) { button.frame.size.height = 1; },
        [](ButtonElement& button) { button.kind = ButtonElement::Kind::link; },
        [](ButtonElement& button) { button.title = "a"; },
        [](ButtonElement& button) { button.size = ControlSize::large; },
        [](ButtonElement& button) { button.role = ButtonRole::cancel; },
        [](ButtonElement& button) { button.shortcut = KeyboardShortcut::defaultAction; },
        [](ButtonElement& button) { button.action = 1; },
        [](ButtonElement& button) { button.body.emplace_back(ShapeElement{}); },
        [](ButtonElement& button) { button.pressedBody.emplace_back(ShapeElement{}); },
    });
}

TEST(Scene, DiffersByEverythingOfAToggle) {
    expectScenesToDifferByEach<ToggleElement>({
        [](ToggleElement& toggle) { toggle.frame.origin.x = 1; },
        [](ToggleElement& toggle) { toggle.title = "a"; },
        [](ToggleElement& toggle) { toggle.size = ControlSize::small; },
        [](ToggleElement& toggle) { toggle.isOn = true; },
        [](ToggleElement& toggle) { toggle.action = 1; },
    });
}

TEST(StyledText, IsItsRunsInOnePiece) {
    const StyledText text{{{"Click ", FontWeight::regular}, {"Open", FontWeight::bold}}, {}};
    EXPECT_EQ(text.string(), "Click Open");
    EXPECT_EQ(StyledText{}.string(), "");
}

} // namespace kestrune::ui
