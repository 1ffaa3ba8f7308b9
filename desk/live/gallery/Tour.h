// A tour of the desk without a window: a story in scenes, each a picture.
#pragma once

#include "desk/command/Options.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>

namespace kestrune::desk {

// Plays the story in the session's own time, on the displays and in the appearance of the options. Writes
// `01-....png` and so on, 2880 by 1800 pixels each, all.png with all of them, and report.txt, which tells
// every scene with its figures. The folder is made when it is missing. The stored preferences are not
// touched. The error says what could not be written, or why the story cannot be played on these displays.
std::optional<InputError> runTour(const std::string& folder, const Options& options);

} // namespace kestrune::desk
