#include "sim/session/User.h"

namespace kestrune::sim {

bool User::reopenApplication() {
    if (!system_.application.isRunning) {
        return false;
    }
    system_.windows.setActive(true);
    const auto delegate = system_.application.delegate.lock();
    if (!delegate) {
        return true;
    }
    const bool hasVisibleWindows =
        !system_.windows.shown().empty() || !system_.windows.miniaturized().empty();
    system_.journal.record("-[", delegate->className(), " applicationShouldHandleReopen:hasVisibleWindows:] ",
                           hasVisibleWindows);
    return delegate->applicationShouldHandleReopen(hasVisibleWindows);
}

void User::flipPermissionSwitch() {
    const Permission permission = system_.accessibility.permission();
    if (permission == Permission::switchedOff) {
        setPermission(Permission::granted);
    } else if (permission == Permission::granted) {
        setPermission(Permission::switchedOff);
    }
}

void User::removePermissionRow() {
    if (system_.accessibility.isListed()) {
        const bool wasGranted = system_.accessibility.permission() == Permission::granted;
        setPermission(wasGranted ? Permission::rowDeleted : Permission::notListed);
    }
}

} // namespace kestrune::sim
