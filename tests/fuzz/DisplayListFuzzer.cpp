// Display lists: what is accepted is an arrangement that can be, and reads back equal when it is written out;
// what is refused is refused at a display.
#include "replay/recording/DisplayList.h"
#include "tests/fuzz/Fuzzer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrune {
namespace {

using replay::InputError;

constexpr double Largest = 1'000'000;

// Judged without the parser's own rules: by the area that two displays have in common.
bool overlap(const Rect& one, const Rect& other) {
    const double left = std::max(one.origin.x, other.origin.x);
    const double right = std::min(one.origin.x + one.size.width, other.origin.x + other.size.width);
    const double top = std::max(one.origin.y, other.origin.y);
    const double bottom = std::min(one.origin.y + one.size.height, other.origin.y + other.size.height);
    return right - left > 2e-9 && bottom - top > 2e-9;
}

std::string decimal(double number, bool withSign) {
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr;
    return (withSign && !std::signbit(number) ? "+" : "") + std::string(text.data(), end);
}

std::string written(const std::vector<Rect>& displays) {
    std::string text;
    for (const Rect& display : displays) {
        text += (text.empty() ? "" : ",") + decimal(display.size.width, false) + "x" +
                decimal(display.size.height, false) + decimal(display.origin.x, true) +
                decimal(display.origin.y, true);
    }
    return text;
}

void checkArrangement(const std::vector<Rect>& displays) {
    require(!displays.empty() && displays.size() <= 16, "there are 1 to 16 displays");
    require(displays.front().origin == Point{}, "the primary display is at the origin");
    for (std::size_t index = 0; index < displays.size(); ++index) {
        const Rect& display = displays[index];
        require(display.size.width >= 0.001 && display.size.height >= 0.001, "displays have a size");
        require(display.size.width <= Largest && display.size.height <= Largest, "sizes are in range");
        require(std::abs(display.origin.x) <= Largest && std::abs(display.origin.y) <= Largest,
                "positions are in range");
        for (std::size_t other = 0; other < index; ++other) {
            require(!overlap(display, displays[other]), "displays do not overlap");
        }
    }
}

void check(const std::string& text) {
    const auto result = replay::parseDisplayList(text);
    if (const auto* error = std::get_if<InputError>(&result)) {
        requireOneLine(error->message, "--displays: display ");
        return;
    }
    const auto& displays = std::get<std::vector<Rect>>(result);
    checkArrangement(displays);
    const auto again = replay::parseDisplayList(written(displays));
    require(std::holds_alternative<std::vector<Rect>>(again), "what was written is read again");
    require(std::get<std::vector<Rect>>(again) == displays, "what was written reads back equal");
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check(kestrune::asText(data, size));
    return 0;
}
