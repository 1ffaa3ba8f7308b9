// The simulated Mac on the screen, and its windowless commands.

#include "desk/command/OptionsReader.h"
#include "desk/headless/LaunchCommand.h"
#include "desk/headless/ReplayCommand.h"
#include "desk/live/gallery/SettingsPictures.h"
#include "desk/live/gallery/Tour.h"
#include "desk/live/gallery/WizardPictures.h"
#include "desk/window/DeskWindow.h"

#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

constexpr int BadInput = 2;

int refuse(const InputError& error) {
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

int run(const Options& options) {
    if (options.help) {
        return print(helpText());
    }
    if (options.generate) {
        const auto error = runGenerate(options);
        return error ? refuse(*error) : 0;
    }
    if (options.replay || options.launch) {
        const auto result = options.replay ? runReplay(options) : runLaunch(options);
        const auto* text = std::get_if<std::string>(&result);
        return text != nullptr ? print(*text) : refuse(std::get<InputError>(result));
    }
    if (options.tour || options.wizard || options.settings) {
        const auto error = options.tour     ? runTour(*options.tour, options)
                           : options.wizard ? writeWizardPictures(*options.wizard, options)
                                            : writeSettingsPictures(*options.settings, options);
        return error ? refuse(*error) : 0;
    }
    return runDeskWindow(options);
}

int runCommandLine(std::span<const std::string_view> words) {
    const auto options = readOptions(words);
    const auto* error = std::get_if<InputError>(&options);
    return error != nullptr ? refuse(*error) : run(std::get<Options>(options));
}

} // namespace
} // namespace kestrune::desk

int main(int argumentCount, char** arguments) {
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    return kestrune::desk::runCommandLine(words);
}
