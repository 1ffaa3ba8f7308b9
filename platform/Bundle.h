// The main bundle, as far as the application asks for it.
//
// Source: Foundation, NSBundle.h.
#pragma once

#include <optional>
#include <string>

namespace kestrune {

class Bundle {
public:
    // NSBundle.mainBundle.bundleIdentifier: CFBundleIdentifier of the Info.plist; absent when that has none.
    static std::optional<std::string> mainBundleIdentifier();
};

} // namespace kestrune
