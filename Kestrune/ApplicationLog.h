// The application's channels in the unified log.
#pragma once

#include "platform/Log.h"

#include <string_view>

namespace kestrune {

// One channel for each area; the subsystem is the bundle identifier, empty when the bundle has none.
Log applicationLog(std::string_view category);

} // namespace kestrune
