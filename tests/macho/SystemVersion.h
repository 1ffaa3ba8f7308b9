// Versions of macOS as people write them, and which one a folder of the system's stubs stands for.
#pragma once

#include "tests/macho/MachSlice.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::macho {

// Of "13", "13.0" or "13.5.1"; absent for anything else.
std::optional<Version> versionIn(std::string_view text);

// What SDKSettings.json says: programs that are linked with the stubs beside it name it as their SDK. Throws
// MachError, with the name.
Version versionOfSettings(const std::string& json, const std::string& name);

} // namespace kestrune::macho
