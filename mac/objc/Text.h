// The application's texts as the platform's, and back.
#pragma once

#include "mac/objc/Retained.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::mac {

// UTF-8; ill-formed text gives an empty string, as the platform refuses it.
Retained nsString(std::string_view text);

// Empty for nil.
std::string textOf(id string);

// Absent for nil and for anything that is no string.
std::optional<std::string> textIfString(id object);

} // namespace kestrune::mac
