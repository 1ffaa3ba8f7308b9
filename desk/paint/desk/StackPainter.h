// Paints what stands on the displays.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskStack.h"
#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/toolkit/CachedSprite.h"
#include "desk/paint/toolkit/Canvas.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <tuple>

namespace kestrune::desk {

// Keeps each part as it was painted until the part itself changes, so that a pointer that moves over a menu
// or a window costs no more than elsewhere.
class StackPainter {
public:
    void paint(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

private:
    struct Panel {
        Rect frame;
        PanelStyle style;
        bool dark = false;

        friend bool operator==(const Panel&, const Panel&) = default;
    };

    // A part in global display coordinates.
    struct Look {
        Rect frame; // encloses the content
        std::optional<PanelStyle> panel;
        DeskPicture subject; // with nothing but what decides on the content
        std::function<void(const Canvas&)> paintContent;
    };

    // The panel's shadow takes longest to paint, and changes least: a highlight that moves along a menu
    // leaves the panel as it is.
    struct Sprites {
        CachedSprite<Panel> panel;
        CachedSprite<DeskPicture> content;
    };

    // The kind of a part, the number of a window, and the display.
    using Key = std::tuple<PartKind, std::size_t, std::size_t>;

    std::optional<Look> lookOf(const StackedPart& part, const DeskPicture& picture, const Palette& palette);
    Look lookOfMenuBar(std::size_t display, const DeskPicture& picture);
    Look lookOfDock(const DeskPicture& picture, std::size_t display);
    static Look lookOfWindow(const WindowPicture& shown, const DeskPicture& picture, const Palette& palette);
    std::optional<Look> lookOfMenu(const DeskPicture& picture, const Palette& palette);
    std::optional<Look> lookOfToolTip(const DeskPicture& picture, const Palette& palette);
    static void paintOn(const DisplayPlace& place, const Canvas& canvas, const Look& look, Sprites& sprites);

    TextMeasure measure_;
    std::map<Key, Sprites> sprites_;
};

} // namespace kestrune::desk
