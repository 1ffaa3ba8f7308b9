// The simulated Mac on the screen, and its windowless commands.

#include "desk/command/Command.h"
#include "desk/headless/HeadlessCommands.h"
#include "desk/live/gallery/Gallery.h"
#include "desk/window/DeskWindow.h"

#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

constexpr int BadInput = 2;

int refuse(const replay::InputError& error) {
    std::fprintf(stderr, "kestrune-desk: %s\n", error.message.c_str());
    return BadInput;
}

int print(std::string_view text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0) {
        return refuse({"standard output: expected to be able to write"});
    }
    return 0;
}

int finish(const std::optional<replay::InputError>& error) { return error ? refuse(*error) : 0; }

int finish(const std::variant<std::string, replay::InputError>& result) {
    const auto* text = std::get_if<std::string>(&result);
    return text != nullptr ? print(*text) : refuse(std::get<replay::InputError>(result));
}

// Each gives the exit status.
struct Runner {
    const Options& options;

    int operator()(const OpenWindow& window) const { return finish(runDeskWindow(options, window.outcome)); }
    int operator()(const DrawGallery& draw) const {
        return finish(drawGallery(draw.folder, draw.scenes, options));
    }
    int operator()(const PlayRecording& play) const { return finish(runReplay(play, options)); }
    int operator()(const MakeRecording& make) const { return finish(runGenerate(make)); }
    int operator()(const Launch&) const { return finish(runLaunch(options)); }
    int operator()(const PrintHelp& help) const { return print(help.text); }
};

int runCommandLine(std::span<const std::string_view> words) {
    const auto read = readCommand(words);
    if (const auto* error = std::get_if<replay::InputError>(&read)) {
        return refuse(*error);
    }
    const auto& command = std::get<Command>(read);
    return std::visit(Runner{command.options}, command.mode);
}

} // namespace
} // namespace kestrune::desk

// NOLINTNEXTLINE(bugprone-exception-escape): a mode always has a value.
int main(int argumentCount, char** arguments) {
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    return kestrune::desk::runCommandLine(words);
}
