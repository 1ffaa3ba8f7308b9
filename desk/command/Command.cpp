#include "desk/command/Command.h"

#include "replay/recording/DisplayList.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <system_error>
#include <type_traits>

namespace kestrune::desk {

namespace {

constexpr std::uint64_t MostRows = 10'000'000;
constexpr std::uint64_t Largest = std::numeric_limits<std::uint64_t>::max();
constexpr const char* Footer =
    "A recording is a text file with the columns record timestamp,client timestamp,button,state,x,y.\n"
    "Exit status: 0, or 2 with one line on standard error when the input or an option is not usable.";

CLI::Validator path() {
    return {[](const std::string& text) { return text.empty() ? "expected a path, found nothing" : ""; }, ""};
}

template <typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

// The parser's own numbers may be octal, and a large one is whatever is largest.
CLI::Validator wholeNumber(std::uint64_t least, std::uint64_t most) {
    return {[=](std::string& text) {
                const auto number = parsed<std::uint64_t>(text);
                if (!number || *number < least || *number > most) {
                    return "expected a whole number from " + std::to_string(least) + " to " +
                           std::to_string(most) + ", found " + replay::inQuotes(text);
                }
                text = std::to_string(*number);
                return std::string();
            },
            ""};
}

CLI::Validator finiteNumber() {
    return {[](const std::string& text) {
                const auto number = parsed<double>(text);
                return number && std::isfinite(*number)
                           ? std::string()
                           : "expected a finite number of points, found " + replay::inQuotes(text);
            },
            ""};
}

CLI::Validator oneOf(std::initializer_list<const char*> words) {
    return CLI::IsMember(std::vector<std::string>(words.begin(), words.end())).description("");
}

// What an option takes, without the names of those that it does not go with.
class Help : public CLI::Formatter {
public:
    std::string make_option_opts(const CLI::Option* option) const override {
        return option->get_type_size() == 0 ? "" : " " + option->get_type_name();
    }
};

// What an option means something to: the desk in a window, and what comes in its place.
enum Modes : unsigned { inWindow = 1, drawing = 2, replaying = 4, generating = 8, launching = 16 };

class CommandLine {
public:
    CommandLine() {
        const auto help = std::make_shared<Help>();
        help->column_width(22);
        app_.formatter(help);
        app_.set_help_flag("--help", "prints this");
        app_.footer(Footer);
        addModes();
        addDesk();
        addOutcome();
        addGeneration();
    }

    Command read(std::span<const std::string_view> arguments) {
        try {
            // The parser takes the arguments from the end.
            app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        } catch (const CLI::CallForHelp&) {
            return {PrintHelp{app_.help()}, {}};
        }
        if (pin_) {
            options_.pinned = checkedPin();
        }
        return {mode(), options_};
    }

private:
    void addModes() {
        group_ = "Instead of the desk in a window";
        modes_[drawing] = add(drawing, "--gallery", "DIR [SCENE...]", galleryWords_,
                              "draws scenes into the folder DIR, all when none is named: a PNG\n"
                              "for each, and a sheet with all those that belong together")
                              ->check(path());
        modes_[replaying] =
            add(replaying, "--replay", "FILE", play_.recording, "plays a pointer recording")->check(path());
        modes_[generating] =
            add(generating, "--generate", "FILE", make_.path, "writes a made-up recording")->check(path());
        modes_[launching] = addFlag(launching, "--launch", isLaunch_,
                                    "launches Kestrune and prints every call to the platform, in order");
    }

    void addDesk() {
        group_ = "The desk";
        add(
            inWindow | drawing | replaying | launching, "--displays", "LIST",
            [this](const std::string& text) { readDisplays(text); },
            "at most 16 displays as WxH+X+Y or WxH-X-Y, separated by commas,\n"
            "in points, y downwards, decimals allowed; the first is the\n"
            "primary, at +0+0. Usual: 1512x982+0+0,1920x1080+1512-98");
        add(inWindow | replaying | launching, "--pin", "N", pin_,
            "the display that keeps the Dock, counted from 1. Usual: 1")
            ->transform(wholeNumber(0, Largest));
        add(
            inWindow | replaying | launching, "--guard", "on|off",
            [this](const std::string& word) { options_.guardOn = word == "on"; },
            "whether Kestrune guards the Dock. Usual: on")
            ->check(oneOf({"on", "off"}));
        add(inWindow | replaying | launching, "--margin", "M", options_.margin,
            "depth of the guarded band in points; 4 when absent or not\ngreater than 0")
            ->check(finiteNumber());
        add(
            inWindow | launching, "--permission", "P",
            [this](const std::string& word) { options_.isPermissionGranted = word == "granted"; },
            "granted or missing: whether Kestrune has the Accessibility\n"
            "permission when it is launched. Usual: granted")
            ->check(oneOf({"granted", "missing"}));
        add(inWindow | launching, "--defaults", "FILE", options_.defaultsFile,
            "keeps the preferences in a property list")
            ->check(path());
        addFlag(inWindow | drawing | replaying, "--dark", options_.dark, "paints dark");
    }

    void addOutcome() {
        group_ = "With --replay, or when the window is closed";
        add(
            inWindow | replaying, "--report", "json", [this](const std::string&) { outcome_.asJSON = true; },
            "ends with one object instead of a few lines of text")
            ->check(oneOf({"json"}));
        add(inWindow | replaying, "--screenshot", "FILE", outcome_.screenshot,
            "writes a PNG of the desk as it is in the end")
            ->check(path());
        add(replaying, "--emit", "FILE", play_.emit,
            "writes index,type,x,y,deliveredX,deliveredY for each event that\n"
            "was delivered; with --replay only")
            ->check(path());
    }

    void addGeneration() {
        group_ = "With --generate";
        add(generating, "--seed", "N", make_.motion.seed, "the same seed gives the same recording. Usual: 1")
            ->transform(wholeNumber(0, Largest));
        add(generating, "--rows", "N", make_.motion.rows, "how many rows. Usual: 10000")
            ->transform(wholeNumber(1, MostRows));
        add(
            generating, "--size", "WxH", [this](const std::string& text) { readSize(text); },
            "the recorded display, in pixels. Usual: 1512x982");
    }

    CLI::Option* add(unsigned modes, const char* name, const char* kind, auto&& value, const char* what) {
        if constexpr (std::is_invocable_v<decltype(value), const std::string&>) {
            return keepTo(modes, app_.add_option_function<std::string>(name, value, what)->type_name(kind));
        } else {
            return keepTo(modes, app_.add_option(name, value, what)->type_name(kind));
        }
    }

    CLI::Option* addFlag(unsigned modes, const char* name, bool& value, const char* what) {
        return keepTo(modes, app_.add_flag(name, value, what));
    }

    CLI::Option* keepTo(unsigned modes, CLI::Option* option) {
        for (const auto& [mode, another] : modes_) {
            if ((modes & mode) == 0) {
                option->excludes(another);
            } else if (modes == mode) {
                option->needs(another);
            }
        }
        return option->group(group_);
    }

    void readDisplays(const std::string& text) {
        auto displays = replay::parseDisplayList(text);
        if (const auto* error = std::get_if<replay::InputError>(&displays)) {
            throw CLI::ValidationError(error->message);
        }
        options_.displays = std::get<std::vector<Rect>>(std::move(displays));
    }

    std::size_t checkedPin() const {
        if (*pin_ < 1 || *pin_ > options_.displays.size()) {
            const std::string last = std::to_string(options_.displays.size());
            throw CLI::ValidationError("--pin", "expected a display number from 1 to " + last + ", found " +
                                                    std::to_string(*pin_));
        }
        return *pin_ - 1;
    }

    void readSize(std::string_view size) {
        const std::size_t separator = std::min(size.find('x'), size.size());
        const auto width = parsed<int>(size.substr(0, separator));
        const auto height = parsed<int>(size.substr(std::min(separator + 1, size.size())));
        const auto fits = [](std::optional<int> side) {
            return side && *side >= 1 && *side <= replay::MotionGeneratorOptions::LargestSide;
        };
        if (!fits(width) || !fits(height)) {
            throw CLI::ValidationError("--size", "expected WxH with whole numbers from 1 to 65535, found " +
                                                     replay::inQuotes(size));
        }
        make_.motion.width = *width;
        make_.motion.height = *height;
    }

    Mode mode() {
        if (!galleryWords_.empty()) {
            return DrawGallery{galleryWords_.front(), {galleryWords_.begin() + 1, galleryWords_.end()}};
        }
        if (!play_.recording.empty()) {
            play_.outcome = outcome_;
            return play_;
        }
        if (!make_.path.empty()) {
            return make_;
        }
        return isLaunch_ ? Mode(Launch{}) : OpenWindow{outcome_};
    }

    CLI::App app_{"A simulated Mac with several displays, and Kestrune on it, in a window", "kestrune-desk"};
    std::string group_;                      // of the options that are added
    std::map<unsigned, CLI::Option*> modes_; // by the bit of each

    Options options_;
    std::optional<std::size_t> pin_; // counted from 1
    bool isLaunch_ = false;
    std::vector<std::string> galleryWords_; // the folder, then scenes
    Outcome outcome_;
    PlayRecording play_;
    MakeRecording make_;
};

} // namespace

std::variant<Command, replay::InputError> readCommand(std::span<const std::string_view> arguments) {
    try {
        return CommandLine().read(arguments);
    } catch (const CLI::ParseError& error) {
        return replay::InputError{replay::onOneLine(error.what())};
    }
}

} // namespace kestrune::desk
