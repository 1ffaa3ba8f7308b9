// What the application had the system open.
#pragma once

#include <string>
#include <vector>

namespace kestrune::gnustep {

void installOpenedURLs();

// In order.
std::vector<std::string>& openedURLs();

} // namespace kestrune::gnustep
