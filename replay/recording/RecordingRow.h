// One row of a pointer recording, as it stands in the file.
#pragma once

#include "base/Geometry.h"

#include <string>
#include <string_view>

namespace kestrune::replay {

// The first line of every recording.
inline constexpr std::string_view RecordingHeader = "record timestamp,client timestamp,button,state,x,y";

// What recorders write for a coordinate that they could not determine.
inline constexpr double UnknownCoordinate = 65535;

// Down and up are scrolling.
enum class RowState { move, drag, pressed, released, down, up };

struct RecordingRow {
    double recordTime = 0; // Seconds, when the recorder received the event.
    double clientTime = 0; // Seconds, when the event happened.
    std::string button;    // NoButton, Left, Right, Scroll or another name.
    RowState state = RowState::move;
    Point position; // Pixels from the top left of the display.

    bool hasKnownPosition() const {
        return position.x != UnknownCoordinate && position.y != UnknownCoordinate;
    }

    friend bool operator==(const RecordingRow&, const RecordingRow&) = default;
};

// The state's name in a file.
constexpr std::string_view stateName(RowState state) {
    switch (state) {
    case RowState::move:
        return "Move";
    case RowState::drag:
        return "Drag";
    case RowState::pressed:
        return "Pressed";
    case RowState::released:
        return "Released";
    case RowState::down:
        return "Down";
    case RowState::up:
        return "Up";
    }
    return {};
}

} // namespace kestrune::replay
