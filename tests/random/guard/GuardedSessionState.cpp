// The lasting state of a guarded session, compared with what it must be.
#include "replay/StoredChoices.h"
#include "tests/random/guard/GuardRecords.h"
#include "tests/random/guard/GuardedSession.h"

namespace kestrune::simulate {

void GuardedSession::checkState() {
    require(guard_->isRunning() == tap_.isRunning(), "isRunning is not what starting and stopping made it");
    require(session_.taps().count() == tap_.taps(), "not exactly one tap while running and none otherwise");
    require(session_.taps().enabledCount() == tap_.enabledTaps(),
            "the tap is not switched on and off as its notices say");
    require(session_.sources().count() == tap_.sources(),
            "not exactly one run-loop source while running and none otherwise");
    require(session_.liveObjects() == tap_.liveObjects(), "the number of retained platform objects is wrong");
    checkScreens();
    checkLog();
    checkEntries();
}

void GuardedSession::checkScreens() {
    require(knowsDisplays(*guard_, expected_.displays),
            "screensCache is not what the displays were at the last refresh");
    require(pins(*guard_, expected_.pinned), "pinnedScreen is not what the last refresh had to resolve");
}

void GuardedSession::checkLog() {
    const std::vector<sim::LogRecord>& records = session_.logRecords();
    require(records.size() == refusals_, "not exactly one log line for each refused start");
    if (!records.empty()) {
        const sim::LogRecord& last = records.back();
        require(last.level == sim::LogLevel::error &&
                    last.subsystem == session_.bundle().infoString("CFBundleIdentifier") &&
                    last.category == "dockGuard" &&
                    last.message == "Failed to create event tap. Accessibility permission required.",
                "the log line of a refused start is wrong");
    }
}

void GuardedSession::checkEntries() {
    const sim::DefaultsDomain& defaults = session_.defaults();
    require(holdsExactly(defaults.find(replay::entries::PinnedScreenUUID), entries_.choice.stored),
            "the stored choice is not what the last writer had to leave");
    require(holdsExactly(defaults.find(replay::entries::BlockMargin), entries_.margin.stored) &&
                holdsExactly(defaults.find(replay::entries::IsEnabled), entries_.isEnabled.stored),
            "an entry changed that the guard only reads");
}

} // namespace kestrune::simulate
