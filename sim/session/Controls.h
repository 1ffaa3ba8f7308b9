// The buttons and switches in windows, for a hand that holds one and for the keyboard that goes from one to
// the next.
#pragma once

#include "sim/services/Windows.h"
#include "ui/Scene.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace kestrune::sim {

// What is read out for a button or switch; absent for any other element.
std::optional<std::string> titleOfControl(const ui::Element& element);

// A button or switch that may have become another one, or none, since it was noted.
class Control {
public:
    static std::optional<Control> of(const Windows::WindowState& window, std::size_t element);

    // Null when it is not there any more.
    Windows::WindowState window() const;

    // Null unless it is there and a switch.
    const ui::ToggleElement* toggle() const;

    std::size_t element() const { return element_; }
    const std::string& title() const { return title_; }

private:
    Control(const Windows::WindowState& window, std::size_t element, std::string title)
        : window_(window), element_(element), title_(std::move(title)) {}

    std::weak_ptr<Window::State> window_;
    std::size_t element_;
    std::string title_;
};

// Whether it is in that window, and there.
bool isIn(const std::optional<Control>& control, const Windows::WindowState& window);

// The control after another one, or before it, around and around; the first or last one where the other is
// not in the window.
std::optional<Control> nextControl(const Windows::WindowState& window, const std::optional<Control>& control,
                                   bool forwards);

} // namespace kestrune::sim
