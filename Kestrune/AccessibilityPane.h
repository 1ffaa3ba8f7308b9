// Where the user grants the Accessibility permission.
#pragma once

#include <string_view>

namespace kestrune {

// The link to System Settings, Privacy & Security, Accessibility.
inline constexpr std::string_view AccessibilityPaneAddress =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

// Opens it. Whether the system does is not asked. Main thread.
void openAccessibilityPane();

} // namespace kestrune
