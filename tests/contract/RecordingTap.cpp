#include "tests/contract/RecordingTap.h"

#include <utility>

namespace kestrune::contract {

RecordingTap::RecordingTap(ReceivedEvents& received, TapOptions options)
    : received_(received),
      name_(std::move(options.name)),
      tap_(EventTap::create(options.location, options.placement, options.options, options.mask, receive,
                            this)) {
    if (tap_) {
        source_ = tap_->createRunLoopSource(0);
    }
}

// The tap must not call back once this is gone, so it leaves the run loop first.
RecordingTap::~RecordingTap() { unschedule(); }

bool RecordingTap::schedule() {
    if (!source_) {
        return false;
    }
    RunLoop::current().addSource(*source_, RunLoopMode::commonModes);
    return true;
}

void RecordingTap::unschedule() {
    if (source_) {
        RunLoop::current().removeSource(*source_, RunLoopMode::commonModes);
    }
}

Event* RecordingTap::receive(EventTapProxy* /*proxy*/, EventType type, Event* event,
                             void* userInfo) noexcept {
    auto& tap = *static_cast<RecordingTap*>(userInfo);
    if (type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput) {
        tap.received_.push_back({tap.name_, type, {}});
        if (tap.disabledReaction_) {
            tap.disabledReaction_(type);
        }
        return event;
    }
    tap.received_.push_back({tap.name_, type, event->location()});
    return tap.reaction_ ? tap.reaction_(event) : event;
}

} // namespace kestrune::contract
