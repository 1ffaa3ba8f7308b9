#include "platform/EventTap.h"

#include "sim/seam/RecordCall.h"
#include "sim/seam/RunLoopState.h"
#include "sim/services/Accessibility.h"
#include "sim/services/Current.h"
#include "sim/services/Journal.h"
#include "sim/services/TapChain.h"

#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

namespace kestrune {

namespace {

std::string_view nameOf(EventTapLocation location) {
    switch (location) {
    case EventTapLocation::hid:
        return "kCGHIDEventTap";
    case EventTapLocation::session:
        return "kCGSessionEventTap";
    case EventTapLocation::annotatedSession:
        break;
    }
    return "kCGAnnotatedSessionEventTap";
}

std::string_view nameOf(EventTapPlacement placement) {
    return placement == EventTapPlacement::headInsert ? "kCGHeadInsertEventTap" : "kCGTailAppendEventTap";
}

std::string_view nameOf(EventTapOptions options) {
    return options == EventTapOptions::defaultTap ? "kCGEventTapOptionDefault"
                                                  : "kCGEventTapOptionListenOnly";
}

} // namespace

struct EventTap::State {
    explicit State(std::shared_ptr<sim::Tap> created) : tap(std::move(created)) {}

    std::shared_ptr<sim::Tap> tap;
    sim::LiveObject object{"tap"};
};

EventTap::EventTap(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::optional<EventTap> EventTap::create(EventTapLocation location, EventTapPlacement placement,
                                         EventTapOptions options, EventMask eventsOfInterest,
                                         EventTapCallback callback, void* userInfo) {
    if (sim::current<sim::Journal>().isRecording()) {
        std::array<char, 24> mask;
        std::snprintf(mask.data(), mask.size(), "0x%08llX",
                      static_cast<unsigned long long>(eventsOfInterest));
        sim::recordCall("CGEventTapCreate(", nameOf(location), ", ", nameOf(placement), ", ", nameOf(options),
                        ", ", mask.data(), ")");
    }
    if (options == EventTapOptions::defaultTap && !sim::current<sim::Accessibility>().allowsTapCreation()) {
        sim::current<sim::Accessibility>().listApplication();
        return std::nullopt;
    }
    auto tap = std::make_shared<sim::Tap>(
        sim::Tap{location, placement, options, eventsOfInterest, callback, userInfo});
    sim::current<sim::TapChain>().add(tap);
    return EventTap(std::make_shared<State>(std::move(tap)));
}

void EventTap::enable(bool enabled) const {
    sim::recordCall("CGEventTapEnable(tap, ", enabled, ")");
    state_->tap->enabled = enabled;
}

RunLoopSource EventTap::createRunLoopSource(std::intptr_t order) const {
    sim::recordCall("CFMachPortCreateRunLoopSource(kCFAllocatorDefault, tap, ", order, ")");
    return RunLoopSource(std::make_shared<RunLoopSource::State>(state_, state_->tap));
}

} // namespace kestrune
