#include "desk/live/world/WindowParts.h"

#include "desk/paint/mac/ControlPainter.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace kestrune::desk {

const WindowPicture* windowTitled(const DeskPicture& picture, std::string_view title) {
    const auto found = std::find_if(picture.windows.begin(), picture.windows.end(),
                                    [title](const WindowPicture& window) { return window.title == title; });
    return found != picture.windows.end() ? &*found : nullptr;
}

std::optional<DeskTarget> controlTitled(const DeskPicture& picture, std::string_view title) {
    for (const WindowPicture& window : picture.windows) {
        for (std::size_t element = 0; element < window.scene.elements.size(); ++element) {
            if (sim::titleOfControl(window.scene.elements[element]) == title) {
                return DeskTarget::control(window.number, element);
            }
        }
    }
    return std::nullopt;
}

void WindowParts::press(const std::optional<DeskTarget>& target) {
    letGo();
    const WindowState window = windowOf(target);
    if (!window) {
        session_.user().switchAway();
        return;
    }
    const WindowState alert = session_.updates().alert();
    if (window->isOfApplication() && alert && alert != window) {
        session_.user().clickWindow(alert);
        return;
    }
    pressed_ = target;
    isOverPressed_ = true;
    using Kind = DeskTarget::Kind;
    // A window in the background can be closed without coming forward. A tile acts like a button.
    if (target->kind == Kind::closeButton || target->kind == Kind::minimizeButton ||
        target->kind == Kind::dockTile) {
        return;
    }
    session_.user().clickWindow(window);
    if (target->kind == Kind::control) {
        pressedControl_ = sim::Control::of(window, target->index);
        if (const auto* const toggle = pressedControl_ ? pressedControl_->toggle() : nullptr) {
            grip_ = SwitchGrip(toggle->isOn, session_.pointer(), switchTravel(toggle->frame));
        }
    } else if (target->kind == Kind::titleBar) {
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
    if (target->kind == DeskTarget::Kind::closeButton) {
        session_.user().closeWindow(window);
    } else if (target->kind == DeskTarget::Kind::minimizeButton) {
        session_.user().miniaturizeWindow(window);
    } else if (target->kind == DeskTarget::Kind::dockTile) {
        session_.user().clickWindow(window);
    } else if (control && isIn(control, window)) {
        return act(*control);
    }
    return std::nullopt;
}

// What the switch was may have gone while the hand held it.
std::optional<std::string> WindowParts::letGoOfKnob(const Control& control, const SwitchGrip& grip) {
    const ui::ToggleElement* const toggle = control.toggle();
    if (toggle == nullptr) {
        return std::nullopt;
    }
    const bool isFlipped = grip.isOnSide() != toggle->isOn;
    slide(control, grip.position(), grip.isOnSide());
    if (!isFlipped) {
        return std::nullopt;
    }
    auto title = toldOf(control); // The action may end with the switch.
    session_.user().flipSwitch(control.window(), control.element());
    return title;
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
    if (const sim::Display* const display = session_.displays().containing(pointer)) {
        corner.y = std::max(corner.y, display->bounds.minY() + sim::Windows::MenuBarHeight);
    }
    session_.user().moveWindow(window, corner);
}

std::optional<std::string> WindowParts::press(NavigationKey key) {
    switch (key) {
    case NavigationKey::enter:
        return pressShortcut(ui::KeyboardShortcut::defaultAction);
    case NavigationKey::escape:
        return pressShortcut(ui::KeyboardShortcut::cancelAction);
    case NavigationKey::space:
        if (isIn(focused_, session_.windows().receiverOfKeys())) {
            return act(*focused_);
        }
        break;
    case NavigationKey::tab:
    case NavigationKey::backTab:
        focused_ = sim::nextControl(session_.windows().receiverOfKeys(), focused_, key == NavigationKey::tab);
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
    const WindowState key = session_.windows().receiverOfKeys();
    const auto element = sim::User::elementFor(*key, shortcut);
    const auto control = element ? Control::of(key, *element) : std::nullopt;
    auto title = control ? toldOf(*control) : std::nullopt;
    session_.user().press(shortcut);
    return title;
}

std::optional<std::string> WindowParts::act(const Control& control) {
    const WindowState window = control.window();
    auto title = toldOf(control); // The action may end with the control.
    if (const ui::ToggleElement* const toggle = control.toggle()) {
        slide(control, toggle->isOn ? 1 : 0, !toggle->isOn);
        session_.user().flipSwitch(window, control.element());
    } else {
        session_.user().pressButton(window, control.element());
    }
    return title;
}

std::optional<std::string> WindowParts::toldOf(const Control& control) {
    const WindowState window = control.window();
    return window && window->isOfApplication() ? std::optional(control.title()) : std::nullopt;
}

std::optional<MovingSwitch> WindowParts::movingSwitchIn(const WindowState& window) const {
    if (grip_ && grip_->isDragged() && isIn(pressedControl_, window)) {
        return MovingSwitch{pressedControl_->element(), grip_->position()};
    }
    const auto position = slide_ && slide_->control.window() == window
                              ? slide_->knob.position(session_.clock().now())
                              : std::nullopt;
    return position ? std::optional(MovingSwitch{slide_->control.element(), *position}) : std::nullopt;
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
    const WindowState window = target && target->isOfWindow() && target->window < numbered_.size()
                                   ? numbered_[target->window].lock()
                                   : nullptr;
    const bool isTile = target && target->kind == DeskTarget::Kind::dockTile;
    return window && (isTile ? window->isMiniaturized : window->isVisible) ? window : nullptr;
}

Rect WindowParts::globalFrame(const Window::State& window) const {
    return session_.displays().appKitFrame(window.frame); // It turns a frame over, whichever way it was.
}

WindowPicture WindowParts::pictureOf(const WindowState& window) {
    WindowPicture picture;
    picture.number = numberOf(window);
    picture.frame = globalFrame(*window);
    picture.title = window->title;
    picture.titleBarHeight = window->titleBarHeight();
    picture.look = window->look;
    picture.isClosable = window->has(WindowStyleMask::closable);
    picture.isMiniaturizable = window->has(WindowStyleMask::miniaturizable);
    picture.isResizable = window->has(WindowStyleMask::resizable);
    picture.isKey = session_.windows().receiverOfKeys() == window;
    picture.scene = sim::Windows::sceneOf(*window);
    if (isIn(focused_, window)) {
        picture.focusedElement = focused_->element();
    }
    const bool isDragged = grip_ && grip_->isDragged();
    if ((isOverPressed_ || isDragged) && isIn(pressedControl_, window)) {
        picture.pressedElement = pressedControl_->element();
    }
    picture.movingSwitch = movingSwitchIn(window);
    const DeskTarget close = DeskTarget::closeButton(picture.number);
    picture.isCloseButtonPressed = isPressed(close);
    picture.isCloseButtonHovered = isHovered(close);
    const DeskTarget minimize = DeskTarget::minimizeButton(picture.number);
    picture.isMinimizeButtonPressed = isPressed(minimize);
    picture.isMinimizeButtonHovered = isHovered(minimize);
    return picture;
}

bool WindowParts::isPressed(const DeskTarget& button) const { return isOverPressed_ && pressed_ == button; }

bool WindowParts::isHovered(const DeskTarget& button) const {
    return hovered_ == button && (!pressed_ || pressed_ == button);
}

void WindowParts::addTo(DeskPicture& picture) {
    for (const WindowState& window : session_.windows().stack()) {
        picture.windows.push_back(pictureOf(window));
    }
    for (const WindowState& window : session_.windows().miniaturized()) {
        picture.miniaturized.push_back(pictureOf(window));
    }
}

std::optional<WindowPicture> WindowParts::applicationWindow() {
    const std::vector<WindowState> shown = session_.windows().shown();
    return shown.empty() ? std::nullopt : std::optional(pictureOf(shown.front()));
}

} // namespace kestrune::desk
