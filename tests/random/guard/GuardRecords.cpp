#include "tests/random/guard/GuardRecords.h"

#include "tests/random/guard/Invariants.h"

namespace kestrune::simulate {

namespace {

bool isRecordOf(const ManagedScreen& screen, const KnownDisplay& display) {
    return screen.uuid == display.identifier && screen.displayID == display.number &&
           screen.localizedName == display.name && identical(screen.cgFrame.origin, display.bounds.origin) &&
           identical({screen.cgFrame.size.width, screen.cgFrame.size.height},
                     {display.bounds.size.width, display.bounds.size.height});
}

} // namespace

bool knowsDisplays(const DockGuardController& guard, const std::vector<KnownDisplay>& displays) {
    const std::vector<ManagedScreen>& screens = guard.screensCache();
    if (screens.size() != displays.size()) {
        return false;
    }
    for (std::size_t index = 0; index < screens.size(); ++index) {
        if (!isRecordOf(screens[index], displays[index])) {
            return false;
        }
    }
    return true;
}

bool pins(const DockGuardController& guard, const std::optional<KnownDisplay>& display) {
    const std::optional<ManagedScreen>& pinned = guard.pinnedScreen();
    return pinned.has_value() == display.has_value() && (!pinned || isRecordOf(*pinned, *display));
}

} // namespace kestrune::simulate
