#include "tests/contract/World.h"

namespace kestrune::contract {

ConnectedDisplay connectedDisplay(DisplayID displayID, const Rect& bounds) {
    return {displayID, "Display " + std::to_string(displayID), bounds, std::nullopt, std::int64_t{displayID}};
}

World::World() : World(BundleFiles{{{"CFBundleIdentifier", std::string(BundleIdentifier)}}, {}, {}}) {}

std::optional<Point> World::post(EventType type, Point location) {
    const auto delivered = deliver(type, location);
    return delivered ? std::optional(delivered->location) : std::nullopt;
}

void World::launchApplication() {
    launch([] { Application::sharedApplication().run(); });
}

std::vector<ShownRow> World::statusMenuRows() {
    std::vector<ShownRow> rows;
    openStatusMenu([&] { rows = openMenuRows(); });
    return rows;
}

void World::chooseInStatusMenu(std::size_t row) {
    openStatusMenu([&] { chooseRow(row); });
}

} // namespace kestrune::contract
