// Everything that one picture of the desk shows, as plain data.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/SystemPicture.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

enum class GuardState { on, off, noPermission };

// The kind of thing that happened last; it decides the colour of the mark beside the text.
enum class Occurrence { neutral, held, dockMoved, warning };

// One key and what pressing it does.
struct KeyHint {
    std::string key;
    std::string action;

    friend bool operator==(const KeyHint&, const KeyHint&) = default;
};

// A place where the guard held the pointer. Age 0 is just now; at 1 the mark has faded.
struct HeldMark {
    Point location;
    double age = 0;

    friend bool operator==(const HeldMark&, const HeldMark&) = default;
};

// A move of the Dock between two displays, given as indices. Age 0 is just now; at 1 the mark has faded.
struct DockMoveMark {
    std::size_t from = 0;
    std::size_t to = 0;
    double age = 0;

    friend bool operator==(const DockMoveMark&, const DockMoveMark&) = default;
};

struct DeskPicture : MacPicture {
    // What is to be seen of the displays, at no more than 100 %: one logical pixel for each point. Absent:
    // all of them.
    std::optional<Rect> shown;
    // A place that is drawn large in a round glass beside it, where the displays are drawn much smaller.
    std::optional<Point> loupe;
    // The window shows the displays alone: no header, no story and no status bar.
    bool stageOnly = false;

    GuardState guard = GuardState::off;
    std::string whatHappened;
    Occurrence occurrence = Occurrence::neutral;
    std::uint64_t events = 0;
    std::uint64_t held = 0;
    std::uint64_t dockMoves = 0;
    std::vector<KeyHint> keys;

    std::optional<HeldMark> heldMark;
    std::optional<DockMoveMark> dockMoveMark;

    // A sentence above the displays that tells what the picture is about; may be empty.
    std::string story;

    friend bool operator==(const DeskPicture&, const DeskPicture&) = default;
};

} // namespace kestrune::desk
