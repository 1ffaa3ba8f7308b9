#include "sim/session/Controls.h"

#include <utility>
#include <variant>

namespace kestrune::sim {

std::optional<std::string> titleOfControl(const ui::Element& element) {
    if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
        return button->title;
    }
    if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
        return toggle->title;
    }
    return std::nullopt;
}

std::optional<Control> Control::of(const Windows::WindowState& window, std::size_t element) {
    const auto& elements = Windows::sceneOf(*window).elements;
    auto title = element < elements.size() ? titleOfControl(elements[element]) : std::nullopt;
    return title ? std::optional(Control(window, element, *std::move(title))) : std::nullopt;
}

Windows::WindowState Control::window() const {
    auto window = window_.lock();
    const auto now = window ? of(window, element_) : std::nullopt;
    return now && now->title_ == title_ ? window : nullptr;
}

const ui::ToggleElement* Control::toggle() const {
    const auto shownIn = window();
    return shownIn ? std::get_if<ui::ToggleElement>(&Windows::sceneOf(*shownIn).elements[element_]) : nullptr;
}

bool isIn(const std::optional<Control>& control, const Windows::WindowState& window) {
    return control && window && control->window() == window;
}

std::optional<Control> nextControl(const Windows::WindowState& window, const std::optional<Control>& control,
                                   bool forwards) {
    const std::size_t count = Windows::sceneOf(*window).elements.size();
    std::size_t element = forwards ? count - 1 : 0;
    if (isIn(control, window)) {
        element = control->element();
    }
    for (std::size_t tried = 0; tried < count; ++tried) {
        element = (element + (forwards ? 1 : count - 1)) % count;
        if (auto next = Control::of(window, element)) {
            return next;
        }
    }
    return std::nullopt;
}

} // namespace kestrune::sim
