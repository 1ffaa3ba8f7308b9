#include "tests/random/guard/GuardedSession.h"

#include "platform/AccessibilityTrust.h"
#include "replay/StoredChoices.h"
#include "tests/random/guard/Invariants.h"

#include <utility>

namespace kestrune::simulate {

Counts& Counts::operator+=(const Counts& other) {
    events += other.events;
    handled += other.handled;
    moved += other.moved;
    pushedOff += other.pushedOff;
    refreshes += other.refreshes;
    writeBacks += other.writeBacks;
    starts += other.starts;
    refusedStarts += other.refusedStarts;
    switchedOff += other.switchedOff;
    dockMoves += other.dockMoves;
    return *this;
}

GuardedSession::GuardedSession(std::vector<sim::Display> displays, const StoredEntries& entries,
                               sim::Duration dockDwell, bool cursorFollowsEvents)
    : session_(options(std::move(displays), entries, dockDwell, cursorFollowsEvents)),
      guard_(std::make_unique<DockGuardController>()),
      entries_(entries) {
    expected_.storedMargin = entries.margin.reading;
    expected_.enabled = entries.isEnabled.reading;
    session_.defaults().onChange([this](const sim::PropertyListDictionary&) { ++writes_; });
    guard_->setPreferences(std::make_shared<Preferences>(UserDefaults::standardUserDefaults()));
    checkState();
}

sim::SessionOptions GuardedSession::options(std::vector<sim::Display> displays, const StoredEntries& entries,
                                            sim::Duration dockDwell, bool cursorFollowsEvents) {
    sim::SessionOptions result;
    result.displays = std::move(displays);
    put(result.defaults, replay::entries::BlockMargin, entries.margin.stored);
    put(result.defaults, replay::entries::IsEnabled, entries.isEnabled.stored);
    put(result.defaults, replay::entries::PinnedScreenUUID, entries.choice.stored);
    result.recordJournal = false;
    result.cursorFollowsEvents = cursorFollowsEvents;
    result.dockDwell = dockDwell;
    return result;
}

void GuardedSession::changeDisplays(std::vector<sim::Display> displays) {
    const std::optional<DisplayID> dock = session_.dock().display();
    const std::uint64_t dockMoves = session_.dock().moves();
    session_.changeDisplays(std::move(displays));
    if (dock && session_.displays().withID(*dock) != nullptr) {
        require(session_.dock().display() == dock, "the Dock left a connected display without a push");
    }
    require(session_.dock().moves() == dockMoves, "the Dock counted an unplugging as a move");
    checkState();
}

void GuardedSession::scriptReads(std::deque<std::vector<sim::Display>> reads) {
    session_.displays().scriptReads(std::move(reads));
}

void GuardedSession::setMain(std::optional<std::size_t> index) { session_.displays().setMain(index); }

void GuardedSession::setUUIDStringsFail(bool fail) { session_.displays().setUUIDStringsFail(fail); }

void GuardedSession::storeFromOutside(std::string_view key, const std::optional<sim::PropertyList>& value) {
    session_.defaults().set(key, value);
    checkState();
}

void GuardedSession::store(const StoredMargin& margin) {
    entries_.margin = margin;
    expected_.storedMargin = margin.reading;
    storeFromOutside(replay::entries::BlockMargin, margin.stored);
}

void GuardedSession::store(const StoredSwitch& isEnabled) {
    entries_.isEnabled = isEnabled;
    expected_.enabled = isEnabled.reading;
    storeFromOutside(replay::entries::IsEnabled, isEnabled.stored);
}

void GuardedSession::store(const StoredChoice& choice) {
    entries_.choice = choice;
    storeFromOutside(replay::entries::PinnedScreenUUID, choice.stored);
}

void GuardedSession::setPermission(sim::Permission permission) { session_.user().setPermission(permission); }

void GuardedSession::refuseTapCreation(bool refuse) { session_.faults().refuseTapCreation(refuse); }

void GuardedSession::disableTaps(EventType reason) {
    counts_.switchedOff += tap_.enabledTaps();
    session_.faults().disableTaps(reason);
    tap_.switchedOff(session_.clock().now());
    checkState();
}

void GuardedSession::stallMainThread(sim::Duration duration) {
    session_.faults().stallMainThread(duration);
    tap_.mainThreadStalled(session_.clock().now(), duration);
}

void GuardedSession::advance(sim::Duration duration) {
    session_.advance(duration);
    tap_.mainThreadFreed(session_.clock().now());
    require(session_.taps().enabledCount() == tap_.enabledTaps(),
            "the tap is not switched on and off as its notices say");
}

void GuardedSession::waitForMainThread() {
    const sim::Duration now = session_.clock().now();
    if (now < tap_.mainThreadFreeAt()) {
        advance(tap_.mainThreadFreeAt() - now);
    }
}

void GuardedSession::refreshScreens() {
    waitForMainThread();
    const Resolution resolution = expectedResolution(session_.displays(), entries_.choice.reading);
    const std::uint64_t writesBefore = writes_;
    guard_->refreshScreens();
    ++counts_.refreshes;
    checkRefresh(resolution, writes_ - writesBefore);
    expected_.displays = resolution.displays;
    expected_.pinned = resolution.pinned;
    checkState();
}

void GuardedSession::checkRefresh(const Resolution& resolution, std::uint64_t writes) {
    require(writes == (resolution.writes ? 1U : 0U),
            resolution.writes ? "a refresh did not repair the stored choice once"
                              : "a refresh wrote although nothing was to be repaired");
    if (resolution.writes) {
        ++counts_.writeBacks;
        entries_.choice = resolution.written ? choiceOf(*resolution.written) : absentChoice();
    }
}

void GuardedSession::start() {
    waitForMainThread();
    if (!expected_.enabled || tap_.isRunning() || !isProcessTrusted()) {
        return;
    }
    refreshScreens();
    startOrBeRefused();
    checkState();
}

void GuardedSession::startOrBeRefused() {
    const bool allowed = session_.accessibility().allowsTapCreation();
    const std::uint64_t writesBefore = writes_;
    guard_->start();
    require(writes_ == writesBefore, "starting wrote to the defaults");
    if (allowed) {
        tap_.started();
        ++counts_.starts;
    } else {
        ++refusals_;
        ++counts_.refusedStarts;
    }
}

void GuardedSession::stop() {
    waitForMainThread();
    guard_->stop();
    tap_.stopped();
    checkState();
}

void GuardedSession::finish() {
    stop();
    guard_.reset();
    require(session_.liveObjects() == 0, "the guard is gone and left platform objects behind");
    require(session_.taps().count() == 0, "the guard is gone and left a tap behind");
}

} // namespace kestrune::simulate
