// What a URL is in the simulation.
#pragma once

#include "platform/URL.h"

#include <string>

namespace kestrune {

struct URL::State {
    std::string text;
};

} // namespace kestrune
