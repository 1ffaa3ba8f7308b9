// Turns one line of a recording into a row.
#pragma once

#include "replay/recording/InputError.h"
#include "replay/recording/RecordingRow.h"

#include <string_view>
#include <variant>

namespace kestrune::replay {

// The line has no line end. Times are accepted from 0 to 9,000,000,000 seconds (what fits nanoseconds in 64
// bits) and coordinates from 0 to 65535 (recorders store 16 bits); both in decimal or exponent notation.
std::variant<RecordingRow, InputError> parseRow(std::string_view line, FileLine where);

} // namespace kestrune::replay
