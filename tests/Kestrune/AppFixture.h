// A session in which the whole application is launched.
#pragma once

#include "Kestrune/KestruneApp.h"
#include "tests/Kestrune/MenuFixture.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrune {

// What the application has logged, but for the start of the updater.
inline std::vector<std::string> messagesButTheUpdaters(const sim::Session& session) {
    std::vector<std::string> messages;
    for (const sim::LogRecord& record : session.logRecords()) {
        if (record.category != "updater") {
            messages.push_back(record.message);
        }
    }
    return messages;
}

class AppFixture : public ::testing::Test {
protected:
    explicit AppFixture(sim::Permission permission = sim::Permission::granted)
        : session(options(permission)) {}

    ~AppFixture() override {
        if (guard) {
            guard->stop();
        }
    }

    void launch() {
        app = runKestrune();
        guard = app->dockGuard();
    }

    // The same, and the tasks that the launch left behind.
    void launchAndSettle() {
        launch();
        session.advance(sim::Duration::zero());
        session.journal().take();
    }

    // The user grants the permission; nobody tells the application.
    void grant() { session.user().setPermission(sim::Permission::granted); }

    void store(std::string_view key, sim::PropertyList value) {
        session.defaults().set(key, std::move(value));
    }

    const sim::PropertyList* stored(std::string_view key) { return session.defaults().find(key); }

    // Steps of the application's procedures, which are run once more for it and leave everything as it was.
    Calls rebuilding() {
        return callsOf([this] { app->menuBarController()->rebuildMenu(); });
    }

    Calls refreshing() {
        return callsOf([this] { guard->refreshScreens(); });
    }

    Calls startingTheGuard() {
        guard->stop();
        return callsOf([this] { guard->start(); });
    }

    Calls stoppingTheGuard() {
        Calls stopping = callsOf([this] { guard->stop(); });
        guard->start();
        return stopping;
    }

    // Once the watcher has ended, the menu's callback applies the start rule and does nothing else.
    Calls startRule() {
        guard->stop();
        return callsOf([this] { app->accessibilityGranted(); });
    }

    sim::Session session;
    std::shared_ptr<KestruneApp> app;
    // Kept for the tests that let the delegate go: the tap holds the guard unretained.
    std::shared_ptr<DockGuardController> guard;

private:
    static sim::SessionOptions options(sim::Permission permission) {
        sim::SessionOptions options = withDisplays({primaryDisplay(), secondDisplay()});
        options.permission = permission;
        return options;
    }
};

class AppWithoutPermission : public AppFixture {
protected:
    AppWithoutPermission() : AppFixture(sim::Permission::notListed) {}
};

} // namespace kestrune
