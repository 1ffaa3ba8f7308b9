// The platform calls of the application shell, for comparing its procedures with the session's journal.
#pragma once

#include "sim/session/JournalOutline.h"
#include "tests/Kestrune/GuardFixture.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrune {

using Calls = std::vector<std::string>;
using sim::outline;

inline Calls localizing(const std::string& key) {
    return {"NSBundle.mainBundle", "-[NSBundle localizedStringForKey:value:table:] " + key};
}

inline std::string makingItem(const std::string& title, const std::string& action,
                              const std::string& keyEquivalent) {
    return "-[NSMenuItem initWithTitle:action:keyEquivalent:] \"" + title + "\", " + action + ", \"" +
           keyEquivalent + "\"";
}

// An item whose target is the menu bar controller.
inline Calls makingOwnItem(const std::string& title, const std::string& action,
                           const std::string& keyEquivalent) {
    return {makingItem(title, action, keyEquivalent), "-[NSMenuItem setTarget:] MenuBarController"};
}

inline const std::string AddingItem = "-[NSMenu addItem:]";
inline const Calls AddingSeparator = {"+[NSMenuItem separatorItem]", AddingItem};

// A rebuild of the menu in an outline of the journal. `items` counts separators too.
struct RebuildOutline {
    bool trusted = true;
    std::size_t items = 0;
};

inline Calls rebuildOutline(const RebuildOutline& rebuild) {
    Calls steps = {"AXIsProcessTrusted() -> " + std::string(rebuild.trusted ? "true" : "false")};
    if (rebuild.trusted) {
        steps.emplace_back("-[NSUserDefaults boolForKey:] hasCompletedOnboarding");
    }
    steps.emplace_back("-[NSUserDefaults stringForKey:] pinnedScreenUUID");
    steps.emplace_back("-[NSUserDefaults objectForKey:] isEnabled");
    return inOrder({steps, {"-[NSStatusItem setMenu:] " + std::to_string(rebuild.items) + " items"}});
}

inline const std::string ReadingThePin = "-[NSUserDefaults stringForKey:] pinnedScreenUUID";
inline const std::string ReadingTheSwitch = "-[NSUserDefaults objectForKey:] isEnabled";
inline const std::string Trusted = "AXIsProcessTrusted() -> true";
inline const std::string NotTrusted = "AXIsProcessTrusted() -> false";

inline const Calls StartingTheTap = {
    "CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault, 0x080000E0)",
    "CFMachPortCreateRunLoopSource(kCFAllocatorDefault, tap, 0)",
    "CFRunLoopGetCurrent()",
    "CFRunLoopAddSource(main, source, kCFRunLoopCommonModes)",
    "CGEventTapEnable(tap, true)",
};

inline const Calls StoppingTheTap = {
    "CGEventTapEnable(tap, false)",
    "CFRunLoopGetCurrent()",
    "CFRunLoopRemoveSource(main, source, kCFRunLoopCommonModes)",
    "CFRelease(source)",
    "CFRelease(tap)",
};

} // namespace kestrune
