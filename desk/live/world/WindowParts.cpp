#include "desk/live/world/WindowParts.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"
#include "sim/seam/WindowState.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

// The number of the window that a target belongs to.
struct WindowNumber {
    std::optional<std::size_t> operator()(const WindowCloseTarget& target) const { return target.window; }
    std::optional<std::size_t> operator()(const WindowMinimizeTarget& target) const { return target.window; }
    std::optional<std::size_t> operator()(const DockTileTarget& target) const { return target.window; }
    std::optional<std::size_t> operator()(const WindowControlTarget& target) const { return target.window; }
    std::optional<std::size_t> operator()(const WindowTitleTarget& target) const { return target.window; }
    std::optional<std::size_t> operator()(const WindowTarget& target) const { return target.window; }

    template <typename OtherTarget>
    std::optional<std::size_t> operator()(const OtherTarget&) const {
        return std::nullopt;
    }
};

} // namespace

std::optional<std::string> titleOfControl(const ui::Element& element) {
    if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
        return button->title;
    }
    if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
        return toggle->title;
    }
    return std::nullopt;
}

void WindowParts::press(const std::optional<DeskTarget>& target) {
    letGo();
    const WindowState window = windowOf(target);
    if (!window) {
        if (takesKeys()) {
            session_.windows().setActive(false);
        }
        return;
    }
    if (const WindowState alert = modalAlert(); alert && alert != window) {
        session_.windows().click(alert);
        return;
    }
    pressed_ = target;
    isOverPressed_ = true;
    // A window in the background can be closed without coming forward. A tile acts like a button.
    if (std::holds_alternative<WindowCloseTarget>(*target) ||
        std::holds_alternative<WindowMinimizeTarget>(*target) ||
        std::holds_alternative<DockTileTarget>(*target)) {
        return;
    }
    session_.windows().click(window);
    if (const auto* const control = std::get_if<WindowControlTarget>(&*target)) {
        pressedControl_ = controlIn(window, control->element);
        if (const ui::ToggleElement* const toggle = switchOf(pressedControl_)) {
            grip_ = SwitchGrip(toggle->isOn, session_.pointer(), switchTravel(toggle->frame));
        }
    } else if (std::holds_alternative<WindowTitleTarget>(*target)) {
        startDrag(window);
    }
}

std::optional<std::string> WindowParts::release(const std::optional<DeskTarget>& target) {
    const auto pressed = std::exchange(pressed_, std::nullopt);
    const auto control = std::exchange(pressedControl_, std::nullopt);
    const auto grip = std::exchange(grip_, std::nullopt);
    letGo();
    if (grip && grip->isDragged()) {
        return letGoOfKnob(*control, *grip);
    }
    const WindowState window = pressed && pressed == target ? windowOf(target) : nullptr;
    if (!window) {
        return std::nullopt;
    }
    if (std::holds_alternative<WindowCloseTarget>(*target)) {
        session_.windows().closeByUser(window);
    } else if (std::holds_alternative<WindowMinimizeTarget>(*target)) {
        session_.windows().miniaturizeByUser(window);
    } else if (std::holds_alternative<DockTileTarget>(*target)) {
        session_.windows().click(window);
    } else if (control && isStillThere(control, window)) {
        return act(*control);
    }
    return std::nullopt;
}

// What the switch was may have gone while the hand held it.
std::optional<std::string> WindowParts::letGoOfKnob(const Control& control, const SwitchGrip& grip) {
    const WindowState window = control.window.lock();
    const ui::ToggleElement* const toggle = isStillThere(control, window) ? switchOf(control) : nullptr;
    if (toggle == nullptr) {
        return std::nullopt;
    }
    const bool isFlipped = grip.isOnSide() != toggle->isOn;
    slide(control, grip.position(), grip.isOnSide());
    if (!isFlipped) {
        return std::nullopt;
    }
    session_.windows().flipSwitch(window, control.element);
    return control.title;
}

void WindowParts::slide(const Control& control, double from, bool isOn) {
    slide_ = Slide{control, SwitchSlide(from, isOn, session_.clock().now())};
}

void WindowParts::hover(const std::optional<DeskTarget>& target) {
    hovered_ = target;
    isOverPressed_ = pressed_ && pressed_ == target;
}

void WindowParts::letGo() {
    pressed_.reset();
    pressedControl_.reset();
    grip_.reset();
    drag_.reset();
    isOverPressed_ = false;
}

void WindowParts::startDrag(const WindowState& window) {
    const Point corner = globalFrame(*window).origin;
    const Point pointer = session_.pointer();
    drag_ = Drag{window, {pointer.x - corner.x, pointer.y - corner.y}};
}

void WindowParts::followPointer() {
    if (grip_) {
        grip_->follow(session_.pointer());
    }
    const WindowState window = drag_ ? drag_->window.lock() : nullptr;
    if (!window) {
        return;
    }
    const Point pointer = session_.pointer();
    Point corner{pointer.x - drag_->hold.x, pointer.y - drag_->hold.y};
    // A title bar cannot be moved under the menu bar.
    if (const sim::Display* const display = session_.displays().containing(pointer)) {
        corner.y = std::max(corner.y, display->bounds.minY() + MenuBarHeight);
    }
    session_.windows().moveTo(window, corner);
}

std::optional<std::string> WindowParts::press(NavigationKey key) {
    switch (key) {
    case NavigationKey::enter:
        return pressShortcut(ui::KeyboardShortcut::defaultAction);
    case NavigationKey::escape:
        return pressShortcut(ui::KeyboardShortcut::cancelAction);
    case NavigationKey::space:
        if (isStillThere(focused_, session_.windows().keyWindow())) {
            return act(*focused_);
        }
        break;
    case NavigationKey::tab:
        moveFocus(true);
        break;
    case NavigationKey::backTab:
        moveFocus(false);
        break;
    case NavigationKey::up:
    case NavigationKey::down:
    case NavigationKey::left:
    case NavigationKey::right:
        break;
    }
    return std::nullopt;
}

std::optional<std::string> WindowParts::pressShortcut(ui::KeyboardShortcut shortcut) {
    const WindowState key = session_.windows().keyWindow();
    const auto element = sim::Windows::elementFor(*key, shortcut);
    const auto control = element ? controlIn(key, *element) : std::nullopt;
    return control ? std::optional(act(*control)) : std::nullopt;
}

void WindowParts::moveFocus(bool forwards) {
    const WindowState key = session_.windows().keyWindow();
    const auto count = static_cast<int>(sim::Windows::sceneOf(*key).elements.size());
    const int step = forwards ? 1 : -1;
    int element = forwards ? -1 : count;
    if (isStillThere(focused_, key)) {
        element = static_cast<int>(focused_->element);
    }
    for (int tried = 0; tried < count; ++tried) {
        element = (element + step + count) % count;
        if (auto control = controlIn(key, static_cast<std::size_t>(element))) {
            focused_ = std::move(control);
            return;
        }
    }
}

std::optional<WindowParts::Control> WindowParts::controlIn(const WindowState& window, std::size_t element) {
    const auto& elements = sim::Windows::sceneOf(*window).elements;
    auto title = element < elements.size() ? titleOfControl(elements[element]) : std::nullopt;
    return title ? std::optional(Control{window, element, *std::move(title)}) : std::nullopt;
}

bool WindowParts::isStillThere(const std::optional<Control>& control, const WindowState& window) {
    if (!control || !window || control->window.lock() != window) {
        return false;
    }
    const auto now = controlIn(window, control->element);
    return now && now->title == control->title;
}

std::optional<std::string> WindowParts::act(const Control& control) {
    const WindowState window = control.window.lock();
    std::string title = control.title; // The action may end with the control.
    if (const ui::ToggleElement* const toggle = switchOf(control)) {
        slide(control, toggle->isOn ? 1 : 0, !toggle->isOn);
        session_.windows().flipSwitch(window, control.element);
    } else {
        session_.windows().pressButton(window, control.element);
    }
    return title;
}

const ui::ToggleElement* WindowParts::switchOf(const std::optional<Control>& control) {
    const WindowState window = control ? control->window.lock() : nullptr;
    return window ? std::get_if<ui::ToggleElement>(&sim::Windows::sceneOf(*window).elements[control->element])
                  : nullptr;
}

// The alert that keeps the application from everything else; null when there is none.
WindowParts::WindowState WindowParts::modalAlert() const {
    constexpr std::string_view AlertClass = "_NSAlertPanel";
    const auto shown =
        session_.updates().isShowingAlert() ? session_.windows().shown() : std::vector<WindowState>();
    const auto alert = std::find_if(shown.begin(), shown.end(), [&](const WindowState& window) {
        return window->className == AlertClass;
    });
    return alert != shown.end() ? *alert : nullptr;
}

std::optional<MovingSwitch> WindowParts::movingSwitchIn(const WindowState& window) const {
    if (grip_ && grip_->isDragged() && isStillThere(pressedControl_, window)) {
        return MovingSwitch{pressedControl_->element, grip_->position()};
    }
    const auto position = slide_ && isStillThere(slide_->control, window)
                              ? slide_->knob.position(session_.clock().now())
                              : std::nullopt;
    return position ? std::optional(MovingSwitch{slide_->control.element, *position}) : std::nullopt;
}

std::size_t WindowParts::numberOf(const WindowState& window) {
    const auto known = std::find_if(numbered_.begin(), numbered_.end(),
                                    [&](const auto& candidate) { return candidate.lock() == window; });
    const auto number = static_cast<std::size_t>(known - numbered_.begin());
    if (known == numbered_.end()) {
        numbered_.push_back(window);
    }
    return number;
}

WindowParts::WindowState WindowParts::windowOf(const std::optional<DeskTarget>& target) const {
    const auto number = target ? std::visit(WindowNumber{}, *target) : std::nullopt;
    const WindowState window = number && *number < numbered_.size() ? numbered_[*number].lock() : nullptr;
    const bool isTile = target && std::holds_alternative<DockTileTarget>(*target);
    return window && (isTile ? window->isMiniaturized : window->isVisible) ? window : nullptr;
}

Rect WindowParts::globalFrame(const Window::State& window) const {
    return session_.displays().appKitFrame(window.frame); // It turns a frame over, whichever way it was.
}

WindowDepth WindowParts::depthOf(const Window::State& window) const {
    if (window.level > WindowLevel::normal) {
        return WindowDepth::beforeDialog;
    }
    return session_.application().isActive ? WindowDepth::beforePane : WindowDepth::behindSystemWindows;
}

WindowPicture WindowParts::pictureOf(const WindowState& window) {
    WindowPicture picture;
    picture.number = numberOf(window);
    picture.frame = globalFrame(*window);
    picture.title = window->title;
    picture.titleBarHeight = window->titleBarHeight();
    picture.isClosable = window->has(WindowStyleMask::closable);
    picture.isMiniaturizable = window->has(WindowStyleMask::miniaturizable);
    picture.isResizable = window->has(WindowStyleMask::resizable);
    picture.isKey = session_.windows().keyWindow() == window;
    picture.depth = depthOf(*window);
    picture.scene = sim::Windows::sceneOf(*window);
    if (isStillThere(focused_, window)) {
        picture.focusedElement = focused_->element;
    }
    const bool isDragged = grip_ && grip_->isDragged();
    if ((isOverPressed_ || isDragged) && isStillThere(pressedControl_, window)) {
        picture.pressedElement = pressedControl_->element;
    }
    picture.movingSwitch = movingSwitchIn(window);
    const DeskTarget close = WindowCloseTarget{picture.number};
    picture.isCloseButtonPressed = isPressed(close);
    picture.isCloseButtonHovered = isHovered(close);
    const DeskTarget minimize = WindowMinimizeTarget{picture.number};
    picture.isMinimizeButtonPressed = isPressed(minimize);
    picture.isMinimizeButtonHovered = isHovered(minimize);
    return picture;
}

bool WindowParts::isPressed(const DeskTarget& button) const { return isOverPressed_ && pressed_ == button; }

bool WindowParts::isHovered(const DeskTarget& button) const {
    return hovered_ == button && (!pressed_ || pressed_ == button);
}

void WindowParts::addTo(DeskPicture& picture) {
    for (const WindowState& window : session_.windows().shown()) {
        picture.windows.push_back(pictureOf(window));
    }
    for (const WindowState& window : session_.windows().miniaturized()) {
        picture.miniaturized.push_back(pictureOf(window));
    }
}

} // namespace kestrune::desk
