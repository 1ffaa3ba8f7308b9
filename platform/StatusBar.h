// The icons at the trailing end of the menu bar.
//
// Source: AppKit, NSStatusBar.h, NSStatusItem.h, NSStatusBarButton.h, NSCell.h.
#pragma once

#include "platform/Image.h"
#include "platform/Menu.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace kestrune {

// NSImageScaling.
enum class ImageScaling : std::uintptr_t {
    proportionallyDown = 0,
    axesIndependently = 1,
    none = 2,
    proportionallyUpOrDown = 3,
};

// NSVariableStatusItemLength: the item is as wide as its content.
inline constexpr double VariableStatusItemLength = -1.0;

// The NSStatusBarButton that shows a status item; retained.
class StatusBarButton {
public:
    // setImage:. None removes the image.
    void setImage(const std::optional<Image>& image);

    // setImageScaling:.
    void setImageScaling(ImageScaling scaling);

    // setToolTip:, UTF-8.
    void setToolTip(std::string_view toolTip);

    struct State;
    explicit StatusBarButton(std::shared_ptr<State> state) : state_(std::move(state)) {}

private:
    std::shared_ptr<State> state_;
};

// A retained NSStatusItem. It leaves the bar with its last reference.
class StatusItem {
public:
    // button. Absent when the system made none.
    std::optional<StatusBarButton> button() const;

    // setMenu:. Retained; takes the place of the menu before it. A click on the item opens it.
    void setMenu(const Menu& menu);

    struct State;
    explicit StatusItem(std::shared_ptr<State> state) : state_(std::move(state)) {}

private:
    std::shared_ptr<State> state_;
};

class StatusBar {
public:
    // NSStatusBar.systemStatusBar.
    static StatusBar systemStatusBar();

    // statusItemWithLength:, in points or VariableStatusItemLength. A new item.
    StatusItem statusItem(double length);

private:
    StatusBar() = default;
};

} // namespace kestrune
