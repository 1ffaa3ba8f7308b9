#include "benchmarks/EventPathCase.h"

#include "base/Geometry.h"
#include "replay/StoredChoices.h"
#include "sim/hardware/Display.h"

#include <optional>
#include <utility>

namespace kestrune::benchmarks {

namespace {

constexpr double Width = 1920;
constexpr double Height = 1080;

DisplayID numberOf(std::size_t index) { return static_cast<DisplayID>(index + 1); }

// One below the other, so that each display that is passed over takes all four comparisons of its rectangle.
std::vector<sim::Display> column(std::size_t count) {
    std::vector<sim::Display> displays;
    for (std::size_t index = 0; index < count; ++index) {
        const Rect bounds{0, Height * static_cast<double>(index), Width, Height};
        displays.push_back(sim::makeDisplay(numberOf(index), "Display", bounds));
    }
    return displays;
}

sim::SessionOptions optionsOf(const EventPathRow& row) {
    sim::SessionOptions options;
    options.displays = column(row.displayCount);
    options.recordJournal = false;
    const std::size_t pinned = row.place == Place::pinned ? row.displayCount - 1 : 0;
    replay::store({.isEnabled = row.isEnabledStored ? std::optional(true) : std::nullopt,
                   .pinnedScreenUUID = sim::uuidOfDisplay(numberOf(pinned))},
                  options.defaults);
    return options;
}

std::string_view nameOf(Place place) {
    switch (place) {
    case Place::pinned:
        return "pinned";
    case Place::unpinned:
        return "unpinned";
    case Place::blocked:
        break;
    }
    return "blocked";
}

template <typename Handle>
[[gnu::always_inline]] inline void feedLoop(std::size_t events, Point location, Handle handle) {
    for (std::size_t index = 0; index < events; ++index) {
        sim::PointerEvent event(EventType::mouseMoved, location);
        escape(&event);
        escape(handle(&event));
    }
}

} // namespace

std::string EventPathRow::name() const {
    std::string name = std::to_string(displayCount);
    name += displayCount == 1 ? " display, " : " displays, ";
    name += nameOf(place);
    if (!isEnabledStored) {
        name += ", isEnabled absent";
    }
    return name;
}

std::vector<EventPathRow> eventPathRows() {
    std::vector<EventPathRow> rows{{1, Place::pinned, true}};
    const auto append = [&rows](std::size_t displayCount, bool isEnabledStored) {
        for (const Place place : {Place::pinned, Place::unpinned, Place::blocked}) {
            rows.push_back({displayCount, place, isEnabledStored});
        }
    };
    for (const std::size_t displayCount : {2U, 4U, 8U, 16U}) {
        append(displayCount, true);
    }
    append(2, false);
    append(16, false);
    return rows;
}

std::string_view nameOf(Handler handler) {
    switch (handler) {
    case Handler::nobody:
        return "nobody";
    case Handler::seamOnly:
        return "seam";
    case Handler::floor:
        return "floor";
    case Handler::controller:
        return "handleEvent";
    case Handler::floorCallback:
        return "floorCallback";
    case Handler::controllerCallback:
        break;
    }
    return "eventTapCallback";
}

EventPathCase::EventPathCase(const EventPathRow& row)
    : row_(row), session_(optionsOf(row)), defaults_(UserDefaults::standardUserDefaults()) {
    controller_.setPreferences(std::make_shared<Preferences>(defaults_));
    controller_.refreshScreens();
    floor_ = makeFloor(controller_, *defaults_);
    const Rect& last = controller_.screensCache().back().cgFrame;
    location_ = {last.minX() + Width / 2,
                 row.place == Place::blocked ? last.maxY() - 2 : last.minY() + Height / 2};
}

Rect EventPathCase::extent() const { return {0, 0, Width, Height * static_cast<double>(row_.displayCount)}; }

double EventPathCase::displayHeight() const { return Height; }

// Out of line, as the handlers are.
[[gnu::noinline]] Event* EventPathCase::callSeam(Event* event) const {
    const UserDefaults& defaults = *defaults_;
    if (defaults.objectForKey(Preferences::IsEnabledKey) != nullptr) {
        static_cast<void>(defaults.boolForKey(Preferences::IsEnabledKey));
    }
    if (row_.displayCount < 2) {
        return event;
    }
    const Point location = event->location();
    if (row_.place == Place::pinned) {
        return event;
    }
    static_cast<void>(defaults.doubleForKey(Preferences::BlockMarginKey));
    if (row_.place == Place::blocked) {
        event->setLocation(location);
    }
    return event;
}

void EventPathCase::feed(Handler handler, std::size_t events) {
    const Point location = location_;
    switch (handler) {
    case Handler::nobody:
        feedLoop(events, location, [](Event* event) { return event; });
        return;
    case Handler::seamOnly:
        feedLoop(events, location, [this](Event* event) { return callSeam(event); });
        return;
    case Handler::floor:
        feedLoop(events, location, [this](Event* event) { return floorHandleEvent(floor_, event); });
        return;
    case Handler::controller:
        feedLoop(events, location, [this](Event* event) { return controller_.handleEvent(event); });
        return;
    case Handler::floorCallback:
        feedLoop(events, location, [this](Event* event) {
            return floorTapCallback(nullptr, EventType::mouseMoved, event, &floor_);
        });
        return;
    case Handler::controllerCallback:
        feedLoop(events, location, [this](Event* event) {
            return DockGuardController::eventTapCallback(nullptr, EventType::mouseMoved, event, &controller_);
        });
        return;
    }
}

Point EventPathCase::handled(Handler decider, Point location) {
    sim::PointerEvent event(EventType::mouseMoved, location);
    switch (decider) {
    case Handler::nobody:
    case Handler::seamOnly:
        break;
    case Handler::floor:
        floorHandleEvent(floor_, &event);
        break;
    case Handler::controller:
        controller_.handleEvent(&event);
        break;
    case Handler::floorCallback:
        floorTapCallback(nullptr, event.type, &event, &floor_);
        break;
    case Handler::controllerCallback:
        DockGuardController::eventTapCallback(nullptr, event.type, &event, &controller_);
        break;
    }
    return event.location;
}

} // namespace kestrune::benchmarks
