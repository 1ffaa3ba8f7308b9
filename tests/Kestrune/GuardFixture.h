// A session with the guard on it, for tests that look at single calls.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/Preferences.h"
#include "replay/StoredChoices.h"
#include "tests/Kestrune/Calls.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrune {

// Not the application's own names: users have stored their choices under these.
namespace entries = replay::entries;

// The primary display, and to its right a smaller one whose bottom edge is level with the primary's.
inline sim::Display primaryDisplay() { return sim::makeDisplay(1, "Primary", {0, 0, 1920, 1080}); }
inline sim::Display secondDisplay() { return sim::makeDisplay(2, "Second", {1920, 280, 1280, 800}); }
inline sim::Display thirdDisplay() { return sim::makeDisplay(3, "Third", {3200, 0, 1920, 1080}); }

inline sim::SessionOptions withDisplays(std::vector<sim::Display> displays) {
    sim::SessionOptions options;
    options.displays = std::move(displays);
    return options;
}

class GuardFixture : public ::testing::Test {
protected:
    explicit GuardFixture(sim::SessionOptions options = withDisplays({primaryDisplay(), secondDisplay()}))
        : session(std::move(options)),
          preferences(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())) {
        guard.setPreferences(preferences);
        session.journal().take();
    }

    ~GuardFixture() override { guard.stop(); }

    void store(std::string_view key, std::optional<sim::PropertyList> value) {
        session.defaults().set(key, std::move(value));
    }

    std::optional<std::string> storedPin() const {
        const sim::PropertyList* value = sim::Session::current().defaults().find(entries::PinnedScreenUUID);
        return value != nullptr ? value->asString() : std::nullopt;
    }

    void refreshAndStart() {
        guard.refreshScreens();
        guard.start();
        session.journal().take();
    }

    // Where an event at that location is delivered.
    Point delivered(Point location, EventType type = EventType::mouseMoved) {
        return session.post(type, location).delivered;
    }

    sim::Session session;
    std::shared_ptr<Preferences> preferences;
    DockGuardController guard;
};

} // namespace kestrune
