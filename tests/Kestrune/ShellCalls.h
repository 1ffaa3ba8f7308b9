// Platform calls of the application shell, as the session's journal has them.
#pragma once

#include "tests/Kestrune/GuardFixture.h"

#include <string>

namespace kestrune {

inline Calls localizing(const std::string& key) {
    return {"NSBundle.mainBundle", "-[NSBundle localizedStringForKey:value:table:] " + key};
}

inline Calls openingLog(const std::string& category) {
    return {"NSBundle.mainBundle", "-[NSBundle bundleIdentifier]",
            "os_log_create(org.kestrune.Kestrune, " + category + ")"};
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

inline const std::string Trusted = "AXIsProcessTrusted() -> true";
inline const std::string NotTrusted = "AXIsProcessTrusted() -> false";

} // namespace kestrune
