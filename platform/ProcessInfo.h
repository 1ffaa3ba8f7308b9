// What the process runs on.
//
// Source: Foundation, NSProcessInfo.h.
#pragma once

#include <cstdint>

namespace kestrune {

// NSOperatingSystemVersion.
struct OperatingSystemVersion {
    std::intptr_t majorVersion = 0;
    std::intptr_t minorVersion = 0;
    std::intptr_t patchVersion = 0;
};

class ProcessInfo {
public:
    // NSProcessInfo.processInfo.
    static ProcessInfo processInfo();

    // operatingSystemVersion.
    OperatingSystemVersion operatingSystemVersion() const;

private:
    ProcessInfo() = default;
};

} // namespace kestrune
