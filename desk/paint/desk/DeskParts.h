// What stands on the displays: one list in the order in which it covers each other, for painting and for the
// pointer.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskTarget.h"
#include "desk/paint/mac/PanelPainter.h"
#include "desk/paint/toolkit/CachedSprite.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

namespace kestrune::desk {

// Where a part can be pressed. Small controls take presses close beside them, too.
struct PressArea {
    DeskTarget target;
    Rect area;
    double reach = 0;
};

// Places are in global display coordinates.
struct DeskPart {
    enum class Kind { menu, toolTip, menuBar, dock, window };

    Kind kind = Kind::window;
    // The only display that shows it. Absent for a window, which is on every display that it reaches.
    std::optional<std::size_t> display = std::nullopt;
    std::size_t window = 0; // its number

    Rect frame = {};
    std::optional<PanelStyle> panel = std::nullopt; // that it stands on
    MacPicture subject = {};                        // with nothing but what decides on the content
    Rect painted = frame;                           // encloses the content
    std::function<void(const Canvas&)> paint = {};

    // From front to back. Elsewhere in the frame is what lies around these, if anything can be done with it.
    std::vector<PressArea> presses = {};
    std::optional<DeskTarget> around = std::nullopt;
};

// From front to back. What they paint with refers to the picture, which must outlive them.
std::vector<DeskPart> partsOf(const DeskPicture& picture, TextPainter& measure);

// What a place on the displays belongs to. Keep one for each window; it is meant to be asked with each event
// of the pointer.
class DeskHitTest {
public:
    // The foremost part at a place in global display coordinates; absent where the bare desk is. Tool tips
    // let everything through.
    std::optional<DeskTarget> targetAt(const DeskPicture& picture, Point place);

    // Where a part is, in global display coordinates; absent for a part that the picture does not have or
    // that has no place of its own.
    std::optional<Rect> areaOf(const DeskPicture& picture, const DeskTarget& target);

    // What is open in front of everything, in global display coordinates: the menu or the tool tip, and
    // without one all windows. Absent when nothing is open.
    std::optional<Rect> openParts(const DeskPicture& picture);

private:
    TextPainter measure_;
};

// Keeps each part as it was painted until the part itself changes, so that a pointer that moves over a menu
// or a window costs no more than elsewhere.
class StackPainter {
public:
    void paint(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

private:
    // With the place, and whether it is dark.
    using Panel = std::tuple<Rect, PanelStyle, bool>;

    // The panel's shadow takes longest to paint, and changes least: a highlight that moves along a menu
    // leaves the panel as it is.
    struct Sprites {
        CachedSprite<Panel> panel;
        CachedSprite<MacPicture> content;
    };

    // The kind of a part, the number of a window, and the display.
    using Key = std::tuple<DeskPart::Kind, std::size_t, std::size_t>;

    static void paintOn(const DisplayPlace& place, const Canvas& canvas, const DeskPart& part,
                        Sprites& sprites);

    TextPainter measure_;
    std::map<Key, Sprites> sprites_;
};

} // namespace kestrune::desk
