// A tap for contract tests: it writes down what it receives and does to an event what the test asks for.
#pragma once

#include "platform/EventTap.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::contract {

inline constexpr EventMask MouseMovedMask = eventMaskBit(EventType::mouseMoved);

struct ReceivedEvent {
    std::string tap;
    EventType type;
    Point location; // Of pointer events only.

    friend bool operator==(const ReceivedEvent&, const ReceivedEvent&) = default;
};

// In the order of arrival, from every tap that shares it.
using ReceivedEvents = std::vector<ReceivedEvent>;

struct TapOptions {
    std::string name = "tap";
    EventTapLocation location = EventTapLocation::session;
    EventTapPlacement placement = EventTapPlacement::headInsert;
    EventTapOptions options = EventTapOptions::defaultTap;
    EventMask mask = MouseMovedMask;
};

class RecordingTap {
public:
    // `received` must outlive the tap. The tap is created but not yet on the run loop.
    RecordingTap(ReceivedEvents& received, TapOptions options);
    ~RecordingTap();

    RecordingTap(const RecordingTap&) = delete;
    RecordingTap& operator=(const RecordingTap&) = delete;

    // Called with each pointer event that the tap receives; the result is the callback's.
    void onPointerEvent(std::function<Event*(Event*)> reaction) { reaction_ = std::move(reaction); }

    // Called with the reason when the tap was disabled.
    void onDisabled(std::function<void(EventType)> reaction) { disabledReaction_ = std::move(reaction); }

    // Puts the tap on the run loop in the common modes. Answers whether there is a tap at all.
    bool schedule();
    void unschedule();

    bool exists() const { return tap_.has_value(); }
    void enable(bool enabled) { tap_->enable(enabled); }
    const RunLoopSource& source() const { return *source_; }

    // Gives up the tap and keeps the source, or the other way around.
    void releaseTap() { tap_.reset(); }
    void releaseSource() { source_.reset(); }

private:
    static Event* receive(EventTapProxy* proxy, EventType type, Event* event, void* userInfo) noexcept;

    ReceivedEvents& received_;
    std::string name_;
    std::function<Event*(Event*)> reaction_;
    std::function<void(EventType)> disabledReaction_;
    std::optional<EventTap> tap_;
    std::optional<RunLoopSource> source_;
};

} // namespace kestrune::contract
