// The windowless commands.
#pragma once

#include "desk/command/Options.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>
#include <variant>

namespace kestrune::desk {

// Plays the recording that the options name, writes what they ask for, and returns the report's text. Nothing
// is reported unless everything was read and written.
std::variant<std::string, InputError> runReplay(const Options& options);

// Writes a made-up recording; the error says why it could not be written.
std::optional<InputError> runGenerate(const Options& options);

} // namespace kestrune::desk
