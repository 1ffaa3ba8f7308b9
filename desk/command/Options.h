// How the desk begins.
#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

struct Options {
    // Global display coordinates, the primary first.
    std::vector<Rect> displays = {{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};

    // Choices that are absent come from the stored preferences.
    std::optional<std::size_t> pinned; // index into `displays`
    std::optional<bool> guardOn;
    std::optional<double> margin; // points

    // The file that keeps the preferences: every change is saved there.
    std::optional<std::string> defaultsFile;

    // Whether Kestrune has the Accessibility permission when it is launched.
    bool isPermissionGranted = true;

    bool dark = false;
};

} // namespace kestrune::desk
