// Numbers in files of comma-separated values.
#pragma once

#include <string>

namespace kestrune::replay {

// Adds the shortest text that reads back as the same number.
void append(double number, std::string& line);

} // namespace kestrune::replay
