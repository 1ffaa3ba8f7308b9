// The user's hand at windows: buttons and switches, title bars, the keyboard.
#pragma once

#include "desk/live/world/SwitchMotion.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskTarget.h"
#include "sim/session/Controls.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::desk {

// The keys that work on menus and windows.
enum class NavigationKey { up, down, left, right, enter, escape, space, tab, backTab };

using sim::titleOfControl;

// The frontmost window of that title, and the button or switch of that title in the frontmost window that has
// one; null and absent when there is none.
const WindowPicture* windowTitled(const DeskPicture& picture, std::string_view title);
std::optional<DeskTarget> controlTitled(const DeskPicture& picture, std::string_view title);

// Works like macOS with keyboard navigation switched on: a click brings a window to the front and makes it
// key; buttons and switches act when the press is released over them, and a switch also goes where its knob
// is dragged; a minimised window comes back with a click on its tile in the Dock; Tab goes from control to
// control. While a modal alert is shown, no other window of the application takes
// a click.
class WindowParts {
public:
    // `session` must outlive the parts.
    explicit WindowParts(sim::Session& session) : session_(session) {}

    // With the button that clicks, at what is under the pointer. A press beside the application's windows
    // makes another application the active one.
    void press(const std::optional<DeskTarget>& target);

    // The title of what was pressed by it in one of the application's windows, if anything was.
    std::optional<std::string> release(const std::optional<DeskTarget>& target);

    // The pointer is over that now.
    void hover(const std::optional<DeskTarget>& target);

    // The pointer has moved in the session. A window that is held by its title bar follows it, and so does a
    // switch that is held by its knob.
    void followPointer();

    // For a window that receives the keys. The title of what was pressed by it in one of the application's.
    std::optional<std::string> press(NavigationKey key);

    // Lets go of what is held.
    void letGo();

    // Puts the windows into a picture of the session's displays.
    void addTo(DeskPicture& picture);

    // The application's frontmost one; absent without any.
    std::optional<WindowPicture> applicationWindow();

private:
    using WindowState = sim::Windows::WindowState;
    using Control = sim::Control;

    struct Drag {
        std::weak_ptr<Window::State> window;
        Point hold; // from the window's upper left corner
    };

    struct Slide {
        Control control;
        SwitchSlide knob;
    };

    std::optional<std::string> act(const Control& control);
    static std::optional<std::string> toldOf(const Control& control);
    std::optional<std::string> letGoOfKnob(const Control& control, const SwitchGrip& grip);
    void slide(const Control& control, double from, bool isOn);
    std::optional<MovingSwitch> movingSwitchIn(const WindowState& window) const;
    std::optional<std::string> pressShortcut(ui::KeyboardShortcut shortcut);
    void startDrag(const WindowState& window);
    std::size_t numberOf(const WindowState& window);
    WindowState windowOf(const std::optional<DeskTarget>& target) const;
    WindowPicture pictureOf(const WindowState& window);
    bool isPressed(const DeskTarget& button) const;
    bool isHovered(const DeskTarget& button) const;
    Rect globalFrame(const Window::State& window) const;

    sim::Session& session_;
    std::vector<std::weak_ptr<Window::State>> numbered_; // a window's number is its place
    std::optional<DeskTarget> pressed_;
    std::optional<Control> pressedControl_;
    std::optional<DeskTarget> hovered_;
    bool isOverPressed_ = false;
    std::optional<SwitchGrip> grip_; // at the knob of the pressed control
    std::optional<Slide> slide_;
    std::optional<Drag> drag_;
    std::optional<Control> focused_;
};

} // namespace kestrune::desk
