// The texts that the user sees.
#pragma once

#include <string>
#include <string_view>

namespace kestrune {

// The text for `key`, which is the English text, in the user's language.
std::string localized(std::string_view key);

} // namespace kestrune
