#include "desk/live/world/WindowParts.h"

#include "desk/live/world/OtherApplication.h"
#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace kestrune::desk {

std::optional<std::string> titleOfControl(const ui::Element& element) {
    if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
        return button->title;
    }
    if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
        return toggle->title;
    }
    return std::nullopt;
}

namespace {

// Whose own icon an application's window shows, the desk knows.
ui::Scene withIcon(ui::Scene scene, const std::string& iconPath) {
    for (ui::Element& element : scene.elements) {
        auto* const symbol = std::get_if<ui::SymbolElement>(&element);
        if (symbol != nullptr && symbol->symbol.name == OwnIconSymbol) {
            symbol->symbol.name = iconSymbol(iconPath);
        }
    }
    return scene;
}

} // namespace

const WindowPicture* windowTitled(const DeskPicture& picture, std::string_view title) {
    const auto found = std::find_if(picture.windows.begin(), picture.windows.end(),
                                    [title](const WindowPicture& window) { return window.title == title; });
    return found != picture.windows.end() ? &*found : nullptr;
}

std::optional<DeskTarget> controlTitled(const DeskPicture& picture, std::string_view title) {
    for (const WindowPicture& window : picture.windows) {
        for (std::size_t element = 0; element < window.scene.elements.size(); ++element) {
            if (titleOfControl(window.scene.elements[element]) == title) {
                return DeskTarget::control(window.number, element);
            }
        }
    }
    return std::nullopt;
}

void WindowParts::press(const std::optional<DeskTarget>& target) {
    letGo();
    system_.update();
    const WindowState window = windowOf(target);
    const bool isOfApplication = window && system_.find(window) == nullptr;
    if (!isOfApplication && takesKeys()) {
        session_.user().switchAway();
    }
    if (!window) {
        return;
    }
    if (const WindowState alert = modalAlert(); isOfApplication && alert && alert != window) {
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
    if (isOfApplication) {
        session_.user().clickWindow(window);
    }
    if (target->kind == Kind::control) {
        pressedControl_ = controlIn(window, target->index);
        if (const ui::ToggleElement* const toggle = switchOf(pressedControl_)) {
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
    system_.update();
    if (grip && grip->isDragged()) {
        return letGoOfKnob(*control, *grip);
    }
    const WindowState window = pressed && pressed == target ? windowOf(target) : nullptr;
    if (!window) {
        return std::nullopt;
    }
    if (target->kind == DeskTarget::Kind::closeButton) {
        close(window);
    } else if (target->kind == DeskTarget::Kind::minimizeButton) {
        session_.user().miniaturizeWindow(window);
    } else if (target->kind == DeskTarget::Kind::dockTile) {
        session_.user().clickWindow(window);
    } else if (control && isStillThere(control, window)) {
        return act(*control);
    }
    return std::nullopt;
}

void WindowParts::close(const WindowState& window) {
    if (const SystemWindow* const ofSystem = system_.find(window)) {
        ofSystem->close();
    } else {
        session_.user().closeWindow(window);
    }
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
    session_.user().flipSwitch(window, control.element);
    return toldOf(control);
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
    session_.user().moveWindow(window, corner);
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
    const auto element = sim::User::elementFor(*key, shortcut);
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
    auto title = toldOf(control); // The action may end with the control.
    if (const ui::ToggleElement* const toggle = switchOf(control)) {
        slide(control, toggle->isOn ? 1 : 0, !toggle->isOn);
        session_.user().flipSwitch(window, control.element);
    } else {
        session_.user().pressButton(window, control.element);
    }
    return title;
}

std::optional<std::string> WindowParts::toldOf(const Control& control) const {
    return system_.find(control.window.lock()) == nullptr ? std::optional(control.title) : std::nullopt;
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
    const WindowState window = target && target->isOfWindow() && target->window < numbered_.size()
                                   ? numbered_[target->window].lock()
                                   : nullptr;
    const bool isTile = target && target->kind == DeskTarget::Kind::dockTile;
    return window && (isTile ? window->isMiniaturized : window->isVisible) ? window : nullptr;
}

Rect WindowParts::globalFrame(const Window::State& window) const {
    return session_.displays().appKitFrame(window.frame); // It turns a frame over, whichever way it was.
}

// From front to back. The application's windows are in front of the system's while it is active, and those
// that float always; only they are in front of the dialog.
std::vector<WindowParts::WindowState> WindowParts::stack() const {
    const auto firstNormal = [](std::vector<WindowState>& windows) {
        return std::find_if(windows.begin(), windows.end(),
                            [](const WindowState& window) { return window->level == WindowLevel::normal; });
    };
    std::vector<WindowState> own = session_.windows().shown();
    std::vector<WindowState> result = system_.shown();
    const auto normal = firstNormal(own);
    result.insert(session_.application().isActive ? firstNormal(result) : result.end(), normal, own.end());
    result.insert(result.begin(), own.begin(), normal);
    return result;
}

// Beside the application, whoever has the frontmost window is the active one.
bool WindowParts::isKey(const WindowState& window) const {
    if (system_.find(window) == nullptr) {
        return session_.windows().keyWindow() == window;
    }
    return !session_.application().isActive && system_.shown().front() == window;
}

WindowPicture WindowParts::pictureOf(const WindowState& window) {
    WindowPicture picture;
    picture.number = numberOf(window);
    picture.frame = globalFrame(*window);
    picture.title = window->title;
    const SystemWindow* const ofSystem = system_.find(window);
    picture.titleBarHeight = ofSystem != nullptr ? ofSystem->titleBarHeight() : window->titleBarHeight();
    picture.look = ofSystem != nullptr ? ofSystem->look : WindowLook::standard;
    picture.isClosable = window->has(WindowStyleMask::closable);
    picture.isMiniaturizable = window->has(WindowStyleMask::miniaturizable);
    picture.isResizable = window->has(WindowStyleMask::resizable);
    picture.isKey = isKey(window);
    picture.scene = withIcon(sim::Windows::sceneOf(*window), kestruneAsListed(session_).iconPath);
    if (isStillThere(focused_, window)) {
        picture.focusedElement = focused_->element;
    }
    const bool isDragged = grip_ && grip_->isDragged();
    if ((isOverPressed_ || isDragged) && isStillThere(pressedControl_, window)) {
        picture.pressedElement = pressedControl_->element;
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
    system_.update();
    for (const WindowState& window : stack()) {
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
