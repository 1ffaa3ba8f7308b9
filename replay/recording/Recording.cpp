#include "replay/recording/Recording.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrune::replay {

void RecordingBuilder::add(const RecordingRow& row) {
    if (row.hasKnownPosition()) {
        recording_.size.width = std::max(recording_.size.width, row.position.x + 1);
        recording_.size.height = std::max(recording_.size.height, row.position.y + 1);
    }
    switch (row.state) {
    case RowState::move:
        addMotion(EventType::mouseMoved, row);
        break;
    case RowState::drag:
        addMotion(dragType(), row);
        break;
    case RowState::pressed:
        ++recording_.skipped.buttons;
        press(buttonKind(row));
        break;
    case RowState::released:
        ++recording_.skipped.buttons;
        release(buttonKind(row));
        break;
    case RowState::down:
    case RowState::up:
        ++recording_.skipped.scrolling;
        break;
    }
}

std::optional<Recording> RecordingBuilder::finish() && {
    if (recording_.motions.empty())
        return std::nullopt;
    return std::move(recording_);
}

void RecordingBuilder::addMotion(EventType type, const RecordingRow& row) {
    if (!row.hasKnownPosition()) {
        ++recording_.skipped.unknownPositions;
        return;
    }
    std::chrono::nanoseconds time{std::llround(row.clientTime * 1e9)};
    if (!recording_.motions.empty())
        time = std::max(time, recording_.motions.back().time);
    recording_.motions.push_back({type, row.position, time});
}

void RecordingBuilder::press(ButtonKind kind) {
    release(kind); // Recorders lose a release now and then; a kind is in the list once.
    pressed_[pressedCount_++] = kind;
}

void RecordingBuilder::release(ButtonKind kind) {
    const auto end = pressed_.begin() + static_cast<std::ptrdiff_t>(pressedCount_);
    pressedCount_ = static_cast<std::size_t>(std::remove(pressed_.begin(), end, kind) - pressed_.begin());
}

EventType RecordingBuilder::dragType() const {
    if (pressedCount_ == 0)
        return EventType::leftMouseDragged;
    switch (pressed_[pressedCount_ - 1]) {
    case ButtonKind::left:
        return EventType::leftMouseDragged;
    case ButtonKind::right:
        return EventType::rightMouseDragged;
    case ButtonKind::other:
        break;
    }
    return EventType::otherMouseDragged;
}

RecordingBuilder::ButtonKind RecordingBuilder::buttonKind(const RecordingRow& row) {
    if (row.button == "Left")
        return ButtonKind::left;
    return row.button == "Right" ? ButtonKind::right : ButtonKind::other;
}

} // namespace kestrune::replay
