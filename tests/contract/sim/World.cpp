#include "tests/contract/World.h"

#include "sim/Session.h"

#include <utility>

namespace kestrune::contract {

struct World::State {
    sim::Session session;
};

namespace {

sim::SessionOptions options(std::optional<std::string> bundleIdentifier) {
    sim::SessionOptions result;
    result.bundleIdentifier = std::move(bundleIdentifier);
    return result;
}

sim::Permission permission(Trust trust) {
    switch (trust) {
    case Trust::notListed:
        return sim::Permission::notListed;
    case Trust::switchedOff:
        return sim::Permission::switchedOff;
    case Trust::granted:
        return sim::Permission::granted;
    case Trust::rowDeleted:
        return sim::Permission::rowDeleted;
    case Trust::outdated:
        break;
    }
    return sim::Permission::stale;
}

struct AsPropertyList {
    template <typename Plain>
    sim::PropertyList operator()(const Plain& value) const {
        return {value};
    }
    // The simulation keeps a data value's text as it stands and never looks into it.
    sim::PropertyList operator()(const StoredData& data) const {
        return {sim::PropertyList::Data{data.bytes}};
    }
    sim::PropertyList operator()(const StoredDate& date) const {
        return {sim::PropertyList::Date{date.iso8601}};
    }
    sim::PropertyList operator()(const StoredArray& array) const {
        sim::PropertyList::Array items;
        for (const std::string& item : array.items) {
            items.push_back({item});
        }
        return {std::move(items)};
    }
    sim::PropertyList operator()(const StoredDictionary& dictionary) const {
        return {sim::PropertyListDictionary{{dictionary.key, {dictionary.value}}}};
    }
};

} // namespace

World::World() : state_(new State{sim::Session(options(std::string(BundleIdentifier)))}) {}

World::World(WithoutBundleIdentifier /*tag*/) : state_(new State{sim::Session(options(std::nullopt))}) {}

World::~World() = default;

void World::connect(const std::vector<ConnectedDisplay>& displays) {
    std::vector<sim::Display> connected;
    for (const ConnectedDisplay& display : displays) {
        connected.push_back(
            {display.displayID, display.uuid, display.screenNumber, display.localizedName, display.bounds});
    }
    state_->session.changeDisplays(std::move(connected));
    setMainDisplay(0);
}

void World::setMainDisplay(std::optional<std::size_t> index) { state_->session.displays().setMain(index); }

void World::failUUIDStrings() { state_->session.displays().setUUIDStringsFail(true); }

void World::setTrust(Trust trust) { state_->session.accessibility().setPermission(permission(trust)); }

void World::store(std::string_view key, const StoredValue& value) {
    state_->session.defaults().set(key, std::visit(AsPropertyList(), value));
}

std::optional<Point> World::post(EventType type, Point location) {
    const sim::Delivery delivery = state_->session.post(type, location);
    return delivery.swallowed ? std::nullopt : std::optional(delivery.delivered);
}

void World::switchTapsOff(EventType reason) { state_->session.disableTaps(reason); }

std::vector<LoggedError> World::loggedErrors() const {
    std::vector<LoggedError> errors;
    for (const sim::LogRecord& record : state_->session.logRecords()) {
        if (record.level == sim::LogLevel::error) {
            errors.push_back({record.subsystem, record.category, record.message});
        }
    }
    return errors;
}

} // namespace kestrune::contract
