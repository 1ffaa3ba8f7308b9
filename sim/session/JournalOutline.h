// Telling the steps of a procedure from the many small calls in between.
#pragma once

#include <string_view>

namespace kestrune::sim {

// Whether a line of a journal only builds a menu's items or reads the displays.
bool isDetail(std::string_view line);

} // namespace kestrune::sim
