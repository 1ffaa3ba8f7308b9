// The user's hand at the parts of the Mac's screen: menus and windows.
#pragma once

#include "desk/live/world/WindowParts.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskTarget.h"
#include "sim/neighbours/Neighbours.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>
#include <string>

namespace kestrune::desk {

// What came of a press, release or key.
struct PartsOutcome {
    // A row of a menu was chosen, by its title.
    std::optional<std::string> chosenRow = std::nullopt;

    // Whether that row had a check mark already.
    bool wasMarked = false;

    // A button or switch of one of the application's windows was pressed, by its title.
    std::optional<std::string> pressedControl = std::nullopt;
};

// Works like macOS: a menu opens with the press, a row is chosen by a release over it, after a click as well
// as at the end of a drag; a press elsewhere closes the menu. Buttons and switches act when the press is
// released over them.
class ScreenParts {
public:
    // `session` must outlive the parts.
    explicit ScreenParts(sim::Session& session)
        : session_(session), neighbours_(session), windows_(session) {}

    // With the button that clicks, at what is under the pointer; absent for the bare desk.
    PartsOutcome press(const std::optional<DeskTarget>& target);
    PartsOutcome release(const std::optional<DeskTarget>& target);

    // The pointer is there now.
    void hover(const std::optional<DeskTarget>& target);

    // The pointer has moved in the session.
    void followPointer() { windows_.followPointer(); }

    // Whether a key goes to a menu or a window, before anybody else.
    bool takesKeys();
    PartsOutcome press(NavigationKey key);

    // Command, and Shift where asked, with a character: a key equivalent of the open or the main menu.
    PartsOutcome pressEquivalent(std::string_view character, bool withShift);

    // As the keyboard's command for the status menus does, on the display with that index.
    void openStatusMenu(std::size_t display);

    // The programs beside the application.
    sim::Neighbours& neighbours() { return neighbours_; }

    bool isMenuOpen() const { return session_.menus().place().has_value(); }

    // Displays have come or gone: what was open or pressed on one of them is no longer there.
    void displaysChanged();

    // Puts the parts into a picture of the session's displays.
    void addTo(DeskPicture& picture);

    // The application's frontmost window; absent without any.
    std::optional<WindowPicture> applicationWindow() { return windows_.applicationWindow(); }

private:
    PartsOutcome pressInMenu(NavigationKey key);
    void openMenu(const sim::MenuPlace& place, std::size_t display);
    void closeMenu();
    void noteClosedMenu();
    PartsOutcome choose(std::size_t row);
    void moveHighlight(int step);
    void moveToMenuBeside(int step);
    void addMenu(DeskPicture& picture) const;
    void addToolTip(DeskPicture& picture);

    sim::Session& session_;
    sim::Neighbours neighbours_;
    WindowParts windows_;
    std::size_t menuDisplay_ = 0;
    std::optional<std::size_t> highlightedRow_;
    std::optional<DeskTarget> opener_; // what the button was pressed on, if that opened the menu

    // Where the pointer rests, and since when without an open menu.
    std::optional<DeskTarget> hovered_;
    sim::Duration hoveredSince_{0};
};

} // namespace kestrune::desk
