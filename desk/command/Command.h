// What the command line asks for.
#pragma once

#include "desk/command/Options.h"
#include "replay/recording/InputError.h"
#include "replay/recording/MotionGenerator.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {

// What comes in the end.
struct Outcome {
    bool asJSON = false;
    std::optional<std::string> screenshot; // where to write the picture of the end
};

struct OpenWindow {
    Outcome outcome;
};

struct DrawGallery {
    std::string folder;
    std::vector<std::string> scenes; // none are all
};

struct PlayRecording {
    std::string recording;
    std::optional<std::string> emit; // where to write what was delivered
    Outcome outcome;
};

struct MakeRecording {
    std::string path;
    replay::MotionGeneratorOptions motion;
};

// Launches Kestrune without a window and prints what it asks of the platform.
struct Launch {};

struct PrintHelp {
    std::string text;
};

using Mode = std::variant<OpenWindow, DrawGallery, PlayRecording, MakeRecording, Launch, PrintHelp>;

struct Command {
    Mode mode;
    Options options;
};

// `arguments` are those after the program's name. The error names the option and what was expected.
std::variant<Command, replay::InputError> readCommand(std::span<const std::string_view> arguments);

} // namespace kestrune::desk
