// The colours of the desk, in light and dark appearance.
#pragma once

#include "ui/SystemColor.h"

#include <cstddef>
#include <cstdint>

namespace kestrune::desk {

// Components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }

    friend constexpr bool operator==(const Color&, const Color&) = default;
};

// A colour written as 0xRRGGBB.
constexpr Color rgb(std::uint32_t hexadecimal, double alpha = 1) {
    return {static_cast<double>(hexadecimal >> 16 & 0xFF) / 255,
            static_cast<double>(hexadecimal >> 8 & 0xFF) / 255, static_cast<double>(hexadecimal & 0xFF) / 255,
            alpha};
}
constexpr Color rgb(const ui::Shade& shade) { return rgb(shade.hexadecimal, shade.alpha); }

// The colour `fraction` of the way from the first to the second.
Color mix(const Color& first, const Color& second, double fraction);

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
    Color caption;
    Color captionText;
    Color captionDetail;

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

struct WallpaperColors {
    Color skyTop;
    Color skyMiddle;
    Color skyHorizon;
    Color sun;
    Color glow; // around the sun
    Color farHill;
    Color nearHill;
};

// Any number picks a wallpaper.
const WallpaperColors& wallpaperColors(std::size_t wallpaper);

} // namespace kestrune::desk
