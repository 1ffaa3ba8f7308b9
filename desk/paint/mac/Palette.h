// The colours of the desk, in light and dark appearance.
#pragma once

#include "desk/paint/toolkit/Color.h"
#include "ui/Style.h"

namespace kestrune::desk {

// Of menus, tool tips, windows and their controls.
struct SystemColors {
    Color accent;           // the user's choice
    Color menuBarHighlight; // behind the title or status item of an open menu

    Color menuPanel;
    Color toolTipPanel;
    Color panelEdge;      // a hairline around a panel
    Color panelHighlight; // a hairline inside that
    Color panelShadow;

    Color text;
    Color detailText;
    Color disabledText;
    Color separator;

    Color paper; // behind what is written

    Color buttonFace;
    Color buttonEdge;
    Color pressedShade;  // laid over a control that is held down
    Color switchTrack;   // while it is off
    Color inactiveTrack; // while it is on, in a window that is not the key window
    Color focusRing;
    Color windowButton; // one that is disabled
};

// Of an application's windows, around what it shows in them.
struct WindowColors {
    Color window;
    Color titleBar; // laid over the window
    Color title;
    Color inactiveTitle;
};

struct Palette {
    Color windowTop;
    Color windowBottom;
    Color hairline;
    Color primaryText;
    Color secondaryText;

    Color keyFace;
    Color keyEdge;
    Color keyBorder;

    Color bezel;
    Color bezelHighlight;
    Color displayShadow;
    Color wallpaperShade; // laid over a wallpaper to fit the appearance

    Color menuBar;
    Color menuBarText;

    Color dockPanel;
    Color dockBorder;
    Color dockShadow;

    Color accent; // of the desk itself: pinned, and a Dock that moved
    Color band;   // guarded, and a pointer that was held
    Color positive;
    Color caution;
    Color inactive;

    SystemColors system;
    WindowColors application;
    bool isDark;
};

const Palette& paletteFor(bool dark);

} // namespace kestrune::desk
