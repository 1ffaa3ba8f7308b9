#include "tests/random/application/ShellSession.h"

#include "platform/Application.h"
#include "replay/StoredChoices.h"

#include <chrono>
#include <utility>

namespace kestrune::simulate {

ShellSession::ShellSession(const ShellBeginning& beginning)
    : session_(options(beginning)), model_(beginning) {
    session_.defaults().onChange([this](const sim::PropertyListDictionary&) {
        ++writes_;
        writesWithTap_ += session_.taps().count();
    });
    check();
}

sim::SessionOptions ShellSession::options(const ShellBeginning& beginning) {
    sim::SessionOptions result;
    result.displays = beginning.displays;
    result.permission = beginning.permission;
    put(result.defaults, replay::entries::IsEnabled, beginning.entries.isEnabled.stored);
    put(result.defaults, replay::entries::PinnedScreenUUID, beginning.entries.choice.stored);
    put(result.defaults, replay::entries::HasCompletedOnboarding, beginning.entries.onboarding.stored);
    put(result.defaults, DownloadsEntry, beginning.entries.downloads);
    sim::PropertyListDictionary& info = result.bundle.infoDictionary;
    put(info, "CFBundleShortVersionString", beginning.bundle.version);
    put(info, "CFBundleVersion", beginning.bundle.build);
    put(info, "NSHumanReadableCopyright", beginning.bundle.copyright);
    put(info, "SUFeedURL", beginning.bundle.feed);
    result.bundle.localizedStrings = beginning.translations;
    result.surroundings = {beginning.bundle.system, beginning.bundle.locale};
    result.updateFramework = beginning.framework;
    result.recordJournal = false;
    return result;
}

void ShellSession::launch() {
    if (isRunning()) {
        return;
    }
    app_ = runKestrune();
    guard_ = app_->dockGuard();
    model_.launch();
    check();
}

void ShellSession::terminate() {
    if (isRunning()) {
        Application::sharedApplication().terminate();
        model_.terminate();
        check();
    }
}

void ShellSession::kill() {
    if (isRunning()) {
        session_.user().endApplication();
        model_.kill();
        check();
    }
}

void ShellSession::letGoOfDelegate(bool controllerStays) {
    if (!app_) {
        return;
    }
    if (controllerStays) {
        controller_ = app_->menuBarController();
    }
    const std::weak_ptr<KestruneApp> delegate = app_;
    app_.reset();
    require(delegate.expired(), "somebody but the entry point retains the delegate");
    model_.letGoOfDelegate(controllerStays);
    check();
}

void ShellSession::reopen() {
    session_.user().reopenApplication();
    model_.reopen();
    check();
}

void ShellSession::setActive(bool isActive) {
    if (!isRunning()) {
        return;
    }
    if (isActive) {
        session_.user().switchToApplication();
    } else {
        session_.user().switchAway();
    }
    model_.setActive(isActive);
    check();
}

void ShellSession::openMenu(const sim::MenuPlace& place) {
    const bool opened = session_.user().openMenu(place);
    require(model_.openMenu(place) == opened, "a menu that is there did not open, or the other way round");
    check();
}

void ShellSession::choose(std::size_t row) {
    const bool reached = session_.user().chooseRow(row);
    require(model_.choose(row) == reached, "the wrong rows of a menu do something");
    check();
}

void ShellSession::press(std::string_view key, EventModifierFlags modifiers) {
    const bool reached = session_.user().press(key, modifiers);
    require(model_.press(key, modifiers) == reached, "the wrong keys do something");
    check();
}

void ShellSession::closeMenu() {
    session_.user().closeMenu();
    model_.closeMenu();
    check();
}

void ShellSession::changeDisplays(const std::vector<sim::Display>& displays, bool announced) {
    if (announced) {
        session_.changeDisplays(displays);
    } else {
        session_.displays().set(displays);
    }
    model_.changeDisplays(displays, announced);
    check();
}

void ShellSession::scriptReads(const std::deque<std::vector<sim::Display>>& reads) {
    session_.displays().scriptReads(reads);
    model_.scriptReads(reads);
}

void ShellSession::setMain(std::optional<std::size_t> index) {
    session_.displays().setMain(index);
    model_.setMain(index);
    check();
}

void ShellSession::setUUIDStringsFail(bool fail) {
    session_.displays().setUUIDStringsFail(fail);
    model_.setUUIDStringsFail(fail);
    check();
}

void ShellSession::store(const StoredSwitch& isEnabled) {
    session_.defaults().set(replay::entries::IsEnabled, isEnabled.stored);
    model_.store(isEnabled);
    check();
}

void ShellSession::store(const StoredChoice& choice) {
    session_.defaults().set(replay::entries::PinnedScreenUUID, choice.stored);
    model_.store(choice);
    check();
}

void ShellSession::storeOnboarding(const StoredFlag& completed) {
    session_.defaults().set(replay::entries::HasCompletedOnboarding, completed.stored);
    model_.storeOnboarding(completed);
    check();
}

void ShellSession::setPermission(sim::Permission permission) {
    session_.user().setPermission(permission);
    model_.setPermission(permission);
    check();
}

void ShellSession::refuseTapCreation(bool refuse) {
    session_.faults().refuseTapCreation(refuse);
    model_.refuseTapCreation(refuse);
    check();
}

// The guard hears of it at once and switches its tap on again.
void ShellSession::disableTaps(EventType reason) {
    session_.faults().disableTaps(reason);
    check();
}

void ShellSession::advance(sim::Duration duration) {
    session_.advance(duration);
    model_.advance(duration);
    check();
}

void ShellSession::finish() {
    kill();
    // What waited for the main thread goes while there still is a session.
    advance(std::chrono::seconds(1));
    checkNothingIsLeft();
}

} // namespace kestrune::simulate
