// What the application finds around it and cannot change.
#pragma once

#include "platform/ProcessInfo.h"

#include <string>

namespace kestrune::sim {

struct Surroundings {
    OperatingSystemVersion operatingSystemVersion = {14, 5, 0};
    std::string localeIdentifier = "en_US";
};

} // namespace kestrune::sim
