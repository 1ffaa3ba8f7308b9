#include "desk/command/OptionsReader.h"

#include "desk/recording/DisplayList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <system_error>

namespace kestrune::desk {

namespace {

using MaybeError = std::optional<InputError>;

constexpr int LargestRecordedSide = 65'535;
constexpr std::size_t MostRows = 10'000'000;

InputError expected(std::string_view option, std::string_view what, std::string_view found) {
    return {std::string(option) + ": expected " + std::string(what) + ", found " + inQuotes(found)};
}

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number number{};
    const char* end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    if (text.empty() || result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return number;
}

class OptionsReader {
public:
    std::variant<Options, InputError> read(std::span<const std::string_view> arguments) {
        for (std::size_t index = 0; index < arguments.size(); ++index) {
            const std::string_view option = arguments[index];
            if (readFlag(option)) {
                continue;
            }
            if (!isValueOption(option)) {
                return InputError{"unknown option " + inQuotes(option) + ": --help lists the options"};
            }
            if (std::find(seen_.begin(), seen_.end(), option) != seen_.end()) {
                return InputError{std::string(option) + ": expected once, found twice"};
            }
            seen_.push_back(option);
            if (++index == arguments.size()) {
                return InputError{std::string(option) + ": expected a value after it"};
            }
            if (MaybeError error = readValue(option, arguments[index])) {
                return *error;
            }
        }
        if (MaybeError error = finish()) {
            return *error;
        }
        return options_;
    }

private:
    static constexpr std::array<std::string_view, 17> ValueOptions = {
        "--displays", "--pin",  "--guard",  "--margin",     "--replay",    "--emit",
        "--report",   "--tour", "--wizard", "--settings",   "--defaults",  "--generate",
        "--seed",     "--rows", "--size",   "--screenshot", "--permission"};

    static bool isValueOption(std::string_view option) {
        return std::find(ValueOptions.begin(), ValueOptions.end(), option) != ValueOptions.end();
    }

    bool readFlag(std::string_view option) {
        if (option == "--help") {
            options_.help = true;
        } else if (option == "--dark") {
            options_.dark = true;
        } else if (option == "--launch") {
            options_.launch = true;
        } else {
            return false;
        }
        return true;
    }

    MaybeError readValue(std::string_view option, std::string_view value) {
        if (option == "--displays") {
            return readDisplays(value);
        }
        if (option == "--pin") {
            pin_ = value;
            return std::nullopt;
        }
        if (option == "--guard") {
            return readGuard(value);
        }
        if (option == "--margin") {
            return readMargin(value);
        }
        if (option == "--permission") {
            return readPermission(value);
        }
        if (option == "--report") {
            options_.reportAsJSON = true;
            return value == "json" ? std::nullopt : MaybeError(expected(option, "json", value));
        }
        if (option == "--seed") {
            return readNumber(option, value, "a whole number from 0 to 18446744073709551615", options_.seed);
        }
        if (option == "--rows") {
            return readRows(value);
        }
        if (option == "--size") {
            return readSize(value);
        }
        return readPath(option, value);
    }

    MaybeError readPath(std::string_view option, std::string_view value) {
        if (value.empty()) {
            return InputError{std::string(option) + ": expected a path, found nothing"};
        }
        pathFor(option) = std::string(value);
        return std::nullopt;
    }

    std::optional<std::string>& pathFor(std::string_view option) {
        if (option == "--replay") {
            return options_.replay;
        }
        if (option == "--emit") {
            return options_.emit;
        }
        if (option == "--screenshot") {
            return options_.screenshot;
        }
        if (option == "--tour") {
            return options_.tour;
        }
        if (option == "--wizard") {
            return options_.wizard;
        }
        if (option == "--settings") {
            return options_.settings;
        }
        return option == "--generate" ? options_.generate : options_.defaults;
    }

    MaybeError readDisplays(std::string_view value) {
        auto displays = parseDisplayList(value);
        if (auto* error = std::get_if<InputError>(&displays)) {
            return *error;
        }
        options_.displays = std::get<std::vector<Rect>>(displays);
        return std::nullopt;
    }

    MaybeError readGuard(std::string_view value) {
        if (value != "on" && value != "off") {
            return expected("--guard", "on or off", value);
        }
        options_.guardOn = value == "on";
        return std::nullopt;
    }

    MaybeError readPermission(std::string_view value) {
        if (value != "granted" && value != "missing") {
            return expected("--permission", "granted or missing", value);
        }
        options_.isPermissionGranted = value == "granted";
        return std::nullopt;
    }

    MaybeError readMargin(std::string_view value) {
        const std::optional<double> margin = parseNumber<double>(value);
        if (!margin || !std::isfinite(*margin)) {
            return expected("--margin", "a finite number of points", value);
        }
        options_.margin = margin;
        return std::nullopt;
    }

    template <typename Number>
    MaybeError readNumber(std::string_view option, std::string_view value, std::string_view what,
                          Number& number) {
        const std::optional<Number> parsed = parseNumber<Number>(value);
        if (!parsed) {
            return expected(option, what, value);
        }
        number = *parsed;
        return std::nullopt;
    }

    MaybeError readRows(std::string_view value) {
        const std::optional<std::size_t> rows = parseNumber<std::size_t>(value);
        if (!rows || *rows < 1 || *rows > MostRows) {
            return expected("--rows", "a whole number from 1 to " + std::to_string(MostRows), value);
        }
        options_.rows = *rows;
        return std::nullopt;
    }

    MaybeError readSize(std::string_view value) {
        const std::size_t separator = std::min(value.find('x'), value.size());
        const std::optional<int> width = parseNumber<int>(value.substr(0, separator));
        const std::optional<int> height =
            parseNumber<int>(value.substr(std::min(separator + 1, value.size())));
        const auto fits = [](std::optional<int> side) {
            return side && *side >= 1 && *side <= LargestRecordedSide;
        };
        if (!fits(width) || !fits(height)) {
            return expected("--size", "WxH with whole numbers from 1 to 65535", value);
        }
        options_.recordedWidth = *width;
        options_.recordedHeight = *height;
        return std::nullopt;
    }

    // What can be decided only once all options are known.
    MaybeError finish() {
        if (pin_) {
            const std::optional<std::size_t> number = parseNumber<std::size_t>(*pin_);
            if (!number || *number < 1 || *number > options_.displays.size()) {
                const std::string what =
                    "a display number from 1 to " + std::to_string(options_.displays.size());
                return expected("--pin", what, *pin_);
            }
            options_.pinned = *number - 1;
        }
        return checkCompany();
    }

    MaybeError checkCompany() const {
        const int modes = (options_.replay ? 1 : 0) + (options_.tour ? 1 : 0) + (options_.wizard ? 1 : 0) +
                          (options_.settings ? 1 : 0) + (options_.generate ? 1 : 0);
        if (modes + (options_.launch ? 1 : 0) > 1) {
            return InputError{
                "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch"};
        }
        if (modes > 0) {
            if (auto error =
                    refuseSeen({"--permission"},
                               "expected without --replay, --tour, --wizard, --settings and --generate")) {
                return error;
            }
        }
        if (options_.emit && !options_.replay) {
            return InputError{"--emit: expected together with --replay"};
        }
        if (options_.defaults && modes > 0) {
            return InputError{
                "--defaults: expected without --replay, --tour, --wizard, --settings and --generate"};
        }
        if (!options_.generate) {
            return refuseSeen({"--seed", "--rows", "--size"}, "expected together with --generate");
        }
        return refuseSeen({"--displays", "--pin", "--guard", "--margin", "--report", "--screenshot"},
                          "expected without --generate");
    }

    MaybeError refuseSeen(std::initializer_list<std::string_view> options, std::string_view why) const {
        for (const std::string_view option : options) {
            if (std::find(seen_.begin(), seen_.end(), option) != seen_.end()) {
                return InputError{std::string(option) + ": " + std::string(why)};
            }
        }
        return std::nullopt;
    }

    Options options_;
    std::optional<std::string_view> pin_;
    std::vector<std::string_view> seen_;
};

} // namespace

std::variant<Options, InputError> readOptions(std::span<const std::string_view> arguments) {
    return OptionsReader().read(arguments);
}

} // namespace kestrune::desk
