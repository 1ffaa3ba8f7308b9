#include "Kestrune/AccessibilityList.h"

#include "platform/EventTap.h"

#include <optional>

namespace kestrune {

namespace {

Event* passUnchanged(EventTapProxy*, EventType, Event* event, void*) noexcept { return event; }

} // namespace

void registerForAccessibilityList() {
    const std::optional<EventTap> tap = EventTap::create(
        EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap,
        eventMaskBit(EventType::mouseMoved), passUnchanged, nullptr);
    if (tap) {
        tap->enable(false);
    }
}

} // namespace kestrune
