#include "benchmarks/gnustep/EmptyApplication.h"

#include "mac/objc/Pool.h"
#include "platform/Application.h"
#include "platform/NotificationCenter.h"
#include "tests/gnustep/harness/Objects.h"

namespace kestrune::benchmarks {

namespace {

using gnustep::classObject;
using gnustep::objectFor;
using gnustep::send;

constexpr double VariableLength = -1; // NSVariableStatusItemLength

id application() { return send(classObject("NSApplication"), "sharedApplication"); }

// Owned by whoever calls, as all of this is until the process ends.
id made(const char* className) { return send(send(classObject(className), "alloc"), "init"); }

id menuToQuit() {
    const id menu = made("NSMenu");
    send(menu, "addItemWithTitle:action:keyEquivalent:", objectFor("Quit"), sel_registerName("terminate:"),
         objectFor("q"));
    return menu;
}

void makeMenus() {
    const mac::Pool pool;
    const id item = made("NSMenuItem");
    send<void>(item, "setSubmenu:", menuToQuit());
    const id mainMenu = made("NSMenu");
    send<void>(mainMenu, "addItem:", item);
    send<void>(application(), "setMainMenu:", mainMenu);

    const id statusBar = send(classObject("NSStatusBar"), "systemStatusBar");
    const id statusItem = send(send(statusBar, "statusItemWithLength:", VariableLength), "retain");
    const id icon = send(classObject("NSImage"), "imageNamed:", objectFor("MenuBarIcon"));
    send<void>(send(statusItem, "button"), "setImage:", icon);
    send<void>(statusItem, "setMenu:", menuToQuit());
}

} // namespace

void runBareApplication() {
    send<BOOL>(application(), "setActivationPolicy:", static_cast<mac::Integer>(ActivationPolicy::accessory));
    send<void>(application(), "run");
}

void runEmptyApplication() {
    NotificationCenter::defaultCenter().addObserver(
        NotificationName("NSApplicationDidFinishLaunchingNotification"), OperationQueue::mainQueue(),
        [](const Notification&) { makeMenus(); });
    runBareApplication();
}

} // namespace kestrune::benchmarks
