// The commands that need no window.
#pragma once

#include "desk/command/Command.h"
#include "replay/recording/InputError.h"

#include <optional>
#include <string>
#include <variant>

namespace kestrune::desk {

// Plays a recording, writes what is asked for, and returns the report's text. Nothing
// is reported unless everything was read and written.
std::variant<std::string, replay::InputError> runReplay(const PlayRecording& play, const Options& options);

// Writes a made-up recording; the error says why it could not be written.
std::optional<replay::InputError> runGenerate(const MakeRecording& make);

// Launches the application, to read what it asks of the platform: every call from the start of the process to
// the end of what the launch left to be done, a line each in order; calls that only build menu items or read
// the displays are counted.
std::variant<std::string, replay::InputError> runLaunch(const Options& options);

} // namespace kestrune::desk
