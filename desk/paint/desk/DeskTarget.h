// What of the Mac's own screen parts a place in the window belongs to, or a press of the button began on.
#pragma once

#include <cstddef>
#include <variant>

namespace kestrune::desk {

// Displays, items, titles and rows are indices into the picture that was asked about; an application's window
// has a number.

struct StatusItemTarget {
    std::size_t display = 0;
    std::size_t item = 0;

    friend bool operator==(const StatusItemTarget&, const StatusItemTarget&) = default;
};

struct MainMenuTitleTarget {
    std::size_t display = 0;
    std::size_t title = 0;

    friend bool operator==(const MainMenuTitleTarget&, const MainMenuTitleTarget&) = default;
};

// Any row of the open menu, separators and disabled rows included.
struct MenuRowTarget {
    std::size_t row = 0;

    friend bool operator==(const MenuRowTarget&, const MenuRowTarget&) = default;
};

// The open menu's margins.
struct MenuPanelTarget {
    friend bool operator==(const MenuPanelTarget&, const MenuPanelTarget&) = default;
};

enum class DialogButton { openSystemSettings, deny };

struct DialogButtonTarget {
    DialogButton button = DialogButton::deny;

    friend bool operator==(const DialogButtonTarget&, const DialogButtonTarget&) = default;
};

// The permission dialog beside its buttons.
struct DialogTarget {
    friend bool operator==(const DialogTarget&, const DialogTarget&) = default;
};

struct PaneSwitchTarget {
    std::size_t row = 0;

    friend bool operator==(const PaneSwitchTarget&, const PaneSwitchTarget&) = default;
};

// A row of the pane of System Settings beside its switch.
struct PaneRowTarget {
    std::size_t row = 0;

    friend bool operator==(const PaneRowTarget&, const PaneRowTarget&) = default;
};

struct PaneCloseTarget {
    friend bool operator==(const PaneCloseTarget&, const PaneCloseTarget&) = default;
};

// The − button while it is enabled.
struct PaneRemoveTarget {
    friend bool operator==(const PaneRemoveTarget&, const PaneRemoveTarget&) = default;
};

// The pane where nothing can be pressed.
struct PaneTarget {
    friend bool operator==(const PaneTarget&, const PaneTarget&) = default;
};

struct MailCloseTarget {
    friend bool operator==(const MailCloseTarget&, const MailCloseTarget&) = default;
};

// The mail program's window where nothing can be pressed.
struct MailTarget {
    friend bool operator==(const MailTarget&, const MailTarget&) = default;
};

struct WindowCloseTarget {
    std::size_t window = 0;

    friend bool operator==(const WindowCloseTarget&, const WindowCloseTarget&) = default;
};

struct WindowMinimizeTarget {
    std::size_t window = 0;

    friend bool operator==(const WindowMinimizeTarget&, const WindowMinimizeTarget&) = default;
};

// The tile of a minimised window in the Dock.
struct DockTileTarget {
    std::size_t window = 0;

    friend bool operator==(const DockTileTarget&, const DockTileTarget&) = default;
};

// A button or switch of the scene that an application shows in its window.
struct WindowControlTarget {
    std::size_t window = 0;
    std::size_t element = 0; // of the scene

    friend bool operator==(const WindowControlTarget&, const WindowControlTarget&) = default;
};

// The title bar beside its buttons, by which a window is dragged.
struct WindowTitleTarget {
    std::size_t window = 0;

    friend bool operator==(const WindowTitleTarget&, const WindowTitleTarget&) = default;
};

// An application's window where nothing can be pressed.
struct WindowTarget {
    std::size_t window = 0;

    friend bool operator==(const WindowTarget&, const WindowTarget&) = default;
};

using DeskTarget =
    std::variant<StatusItemTarget, MainMenuTitleTarget, MenuRowTarget, MenuPanelTarget, DialogButtonTarget,
                 DialogTarget, PaneSwitchTarget, PaneRowTarget, PaneCloseTarget, PaneRemoveTarget, PaneTarget,
                 MailCloseTarget, MailTarget, WindowCloseTarget, WindowMinimizeTarget, WindowControlTarget,
                 WindowTitleTarget, WindowTarget, DockTileTarget>;

} // namespace kestrune::desk
