// What the command line asks for.
#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::desk {

struct Options {
    // Global display coordinates, the primary first.
    std::vector<Rect> displays = {{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};

    // Choices that are absent come from the stored preferences.
    std::optional<std::size_t> pinned; // index into `displays`
    std::optional<bool> guardOn;
    std::optional<double> margin; // points

    std::optional<std::string> replay;     // the recording to play without a window
    std::optional<std::string> emit;       // where to write what was delivered
    std::optional<std::string> screenshot; // where to write the picture of the end
    std::optional<std::string> tour;       // the folder for the pictures of the tour
    std::optional<std::string> wizard;     // the folder for the pictures of the first-run wizard
    std::optional<std::string> settings;   // the folder for the pictures of the Settings window
    std::optional<std::string> generate;   // where to write a made-up recording
    std::optional<std::string> defaults;   // the file that keeps the preferences

    // Whether Kestrune has the Accessibility permission when it is launched.
    bool isPermissionGranted = true;

    // Whether to launch Kestrune without a window and print what it asks of the platform.
    bool launch = false;

    bool reportAsJSON = false;
    bool dark = false;
    bool help = false;

    std::uint64_t seed = 1;
    std::size_t rows = 10'000;
    int recordedWidth = 1512;
    int recordedHeight = 982;
};

// What --help prints.
std::string_view helpText();

} // namespace kestrune::desk
