// Other processes, cut off: the distributed notification centre starts a daemon and waits for it, now and
// then for ever; the workspace starts a tool that writes into the user's home; and the application offers its
// services under its program's name, which at the end of one process may be another's by then and raises an
// exception. Nothing of the application's goes through them; this stands in for nothing of the Mac's.
#include "tests/gnustep/standins/system/OtherProcesses.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

void connect(id, SEL) {}
void addObserver(id, SEL, id, SEL, id, id, mac::Unsigned) {}
void removeObserver(id, SEL, id, id, id) {}
void postNotification(id, SEL, id, id, id, BOOL) {}
id launchTask(id, SEL, id, id) { return nullptr; }
void registerAsServiceProvider(id, SEL) {}

} // namespace

void installOtherProcesses() {
    const Class center = classNamed("NSDistributedNotificationCenter");
    replaceMethod(center, "_connect", connect);
    replaceMethod(center, "addObserver:selector:name:object:suspensionBehavior:", addObserver);
    replaceMethod(center, "removeObserver:name:object:", removeObserver);
    replaceMethod(center, "postNotificationName:object:userInfo:deliverImmediately:", postNotification);
    replaceMethod(classNamed("GSServicesManager"), "registerAsServiceProvider", registerAsServiceProvider);
    replaceMethod(classOf(classNamed("NSTask")), "launchedTaskWithLaunchPath:arguments:", launchTask);
}

} // namespace kestrune::gnustep
