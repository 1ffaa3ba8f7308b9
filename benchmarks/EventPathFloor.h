// The least that a guard must do for one pointer event, written by hand as one function over plain arrays.
//
// It stands beside DockGuardController to show what the application's structure costs. It reads the same
// entries of the same store, makes the same comparisons and calls the same functions of the event; only the
// objects around them are gone.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "base/Geometry.h"
#include "platform/Event.h"
#include "platform/EventTap.h"
#include "platform/UserDefaults.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace kestrune::benchmarks {

// What the guard has resolved, as plain data. The identifiers are borrowed from the controller that the floor
// was made from.
struct EventPathFloor {
    static constexpr std::size_t Capacity = 16;

    const UserDefaults* defaults = nullptr;
    bool hasPinned = false;
    std::size_t displayCount = 0;
    std::string_view pinnedIdentifier;
    std::array<Edges, Capacity> frames{};
    std::array<std::string_view, Capacity> identifiers;
};

// The floor for what `controller` resolved at its last refresh, at most `Capacity` displays. The controller
// and the defaults must outlive it.
EventPathFloor makeFloor(const DockGuardController& controller, const UserDefaults& defaults);

// Does what DockGuardController::handleEvent does.
Event* floorHandleEvent(const EventPathFloor& floor, Event* event);

// Does what DockGuardController::eventTapCallback does for events of the pointer; `userInfo` is the floor or
// null. There is no tap to switch on again.
Event* floorTapCallback(EventTapProxy* proxy, EventType type, Event* event, void* userInfo) noexcept;

} // namespace kestrune::benchmarks
