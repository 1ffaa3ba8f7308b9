#include "tests/desk/live/WithoutLetters.h"

#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::desk {

namespace {

constexpr ui::Color Opaque = ui::Color::accent;

ui::ShapeElement boxOf(const ui::TextElement& text, ui::Color color) {
    return {.frame = text.frame, .fill = color};
}

// `change` gets each text and what is drawn with it: elements, or the body of a button.
template <typename Drawn, typename Change>
void changeEach(std::vector<Drawn>& drawn, const Change& change) {
    for (std::size_t index = 0, count = drawn.size(); index < count; ++index) {
        if (const auto* const text = std::get_if<ui::TextElement>(&drawn[index])) {
            change(ui::TextElement(*text), drawn, index);
        }
    }
}

template <typename Change>
WindowPicture withChangedTexts(WindowPicture window, const Change& change) {
    window.title.clear();
    changeEach(window.scene.elements, change);
    for (ui::Element& element : window.scene.elements) {
        if (auto* const button = std::get_if<ui::ButtonElement>(&element)) {
            button->title.clear();
            changeEach(button->body, change);
            changeEach(button->pressedBody, change);
        }
    }
    return window;
}

} // namespace

WindowPicture withoutLetters(WindowPicture window) {
    return withChangedTexts(std::move(window),
                            [](const ui::TextElement& text, auto& drawn, std::size_t index) {
                                drawn[index] = boxOf(text, text.text.color);
                            });
}

WindowPicture withOpaqueBoxes(WindowPicture window) {
    return withChangedTexts(std::move(window), [](const ui::TextElement& text, auto& drawn,
                                                  std::size_t index) { drawn[index] = boxOf(text, Opaque); });
}

WindowPicture withCoveredLetters(WindowPicture window) {
    return withChangedTexts(std::move(window), [](const ui::TextElement& text, auto& drawn, std::size_t) {
        drawn.push_back(boxOf(text, Opaque));
    });
}

} // namespace kestrune::desk
