// The mail that reports a bug.
#pragma once

#include "platform/URL.h"

#include <string>
#include <string_view>

namespace kestrune {

// Who gets it.
inline constexpr std::string_view SupportAddress = "support@kestrune.org";

// A link that makes the user's mail program write to the support, with subject and body filled in. Main
// thread, as everything here.
URL makeBugReportURL();

// Asks for a description, and says what the application runs on.
std::string bugReportBody();

// Major, minor and patch, always all three, as in "14.5.0".
std::string osVersionString();

} // namespace kestrune
