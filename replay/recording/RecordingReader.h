// Reads a recording from a file or a stream. There is never a part of a recording: it is read whole, or
// refused.
#pragma once

#include "replay/recording/InputError.h"
#include "replay/recording/Recording.h"

#include <filesystem>
#include <istream>
#include <string>
#include <variant>

namespace kestrune::replay {

using ReadResult = std::variant<Recording, InputError>;

ReadResult readRecording(const std::filesystem::path& path);

// The stream must be open in binary mode; `name` is what messages call it.
ReadResult readRecording(std::istream& input, const std::string& name);

} // namespace kestrune::replay
