// Telling the steps of a procedure from the many small calls in between.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::sim {

// Whether a line of a journal only builds a menu's items or reads the displays.
bool isDetail(std::string_view line);

// The lines that are no details.
std::vector<std::string> outline(const std::vector<std::string>& journal);

} // namespace kestrune::sim
