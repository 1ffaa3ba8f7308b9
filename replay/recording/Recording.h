// A recording of a person's pointer on one display: what is played on a simulated session.
#pragma once

#include "base/Geometry.h"
#include "platform/Event.h"
#include "replay/recording/RecordingRow.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace kestrune::replay {

struct Motion {
    EventType type = EventType::mouseMoved;
    Point position;                  // Pixels from the top left of the recorded display.
    std::chrono::nanoseconds time{}; // Since the recorder's zero; never less than the motion's before.

    friend bool operator==(const Motion&, const Motion&) = default;
};

// Rows that are no motion, by kind.
struct SkippedRows {
    std::size_t buttons = 0;          // Pressed and Released.
    std::size_t scrolling = 0;        // Down and Up.
    std::size_t unknownPositions = 0; // Move and Drag rows without a known position.

    friend bool operator==(const SkippedRows&, const SkippedRows&) = default;
};

struct Recording {
    Size size; // One more than the largest known coordinates of any row.
    std::vector<Motion> motions;
    SkippedRows skipped;

    friend bool operator==(const Recording&, const Recording&) = default;
};

// Makes a recording of rows.
class RecordingBuilder {
public:
    // A client time before that of an earlier motion counts as that motion's time: recorders correct their
    // clocks now and then, and holding the time leaves the order of the motions and all later times as they
    // were recorded.
    void add(const RecordingRow& row);

    // Absent when there was no motion.
    std::optional<Recording> finish() &&;

private:
    enum class ButtonKind { left, right, other };

    void press(ButtonKind kind);
    void release(ButtonKind kind);
    void addMotion(EventType type, const RecordingRow& row);
    EventType dragType() const;
    static ButtonKind buttonKind(const RecordingRow& row);

    Recording recording_;
    // The kinds that are down, in the order in which they were pressed: a drag is one of the latest.
    std::array<ButtonKind, 3> pressed_{};
    std::size_t pressedCount_ = 0;
};

} // namespace kestrune::replay
