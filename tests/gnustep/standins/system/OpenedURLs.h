// What the application had the system open.
#pragma once

#include <string>
#include <vector>

namespace kestrune::gnustep {

void installOpenedURLs();

// In order.
std::vector<std::string>& openedURLs();

// Fault: no application is responsible for any URL.
void refuseOpeningURLs(bool refuse);

} // namespace kestrune::gnustep
