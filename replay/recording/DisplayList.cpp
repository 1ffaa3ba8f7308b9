#include "replay/recording/DisplayList.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <utility>

namespace kestrune::replay {
namespace {

constexpr std::size_t MostDisplays = 16;
constexpr double LargestNumber = 1'000'000;
constexpr double SmallestSize = 0.001;
constexpr double OverlapTolerance = 1e-9;

using DisplayResult = std::variant<Rect, std::string>; // A string says what was expected and found.

struct DisplayText {
    std::string_view width;
    std::string_view height;
    std::string_view x; // With its sign.
    std::string_view y;
};

enum class Sign { allowed, required };

std::size_t digitCount(std::string_view text) {
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

// Takes a sign, digits and possibly a point and more digits off the front. A size may have a minus sign here,
// so that a negative size is refused as one. The result keeps a minus sign and drops a plus sign, which
// from_chars does not know.
std::optional<std::string_view> takeNumber(std::string_view& text, Sign sign) {
    const bool isNegative = text.starts_with('-');
    const bool isPositive = sign == Sign::required && text.starts_with('+');
    if (sign == Sign::required && !isNegative && !isPositive)
        return std::nullopt;
    std::size_t length = isNegative || isPositive ? 1 : 0;
    const std::size_t digits = digitCount(text.substr(length));
    if (digits == 0)
        return std::nullopt;
    length += digits;
    if (text.substr(length).starts_with('.')) {
        const std::size_t decimals = digitCount(text.substr(length + 1));
        if (decimals == 0)
            return std::nullopt;
        length += 1 + decimals;
    }
    const std::string_view number = text.substr(isPositive ? 1 : 0, length - (isPositive ? 1 : 0));
    text.remove_prefix(length);
    return number;
}

std::optional<DisplayText> splitDisplay(std::string_view text) {
    const auto width = takeNumber(text, Sign::allowed);
    if (!width || !text.starts_with('x'))
        return std::nullopt;
    text.remove_prefix(1);
    const auto height = takeNumber(text, Sign::allowed);
    const auto x = takeNumber(text, Sign::required);
    const auto y = takeNumber(text, Sign::required);
    if (!height || !x || !y || !text.empty())
        return std::nullopt;
    return DisplayText{*width, *height, *x, *y};
}

std::optional<double> numberInRange(std::string_view text) {
    double value = 0;
    const auto result =
        std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (result.ec != std::errc() || value < -LargestNumber || value > LargestNumber)
        return std::nullopt;
    return value + 0.0; // Minus zero becomes zero.
}

DisplayResult parseDisplay(std::string_view text) {
    const auto parts = splitDisplay(text);
    if (!parts)
        return "expected WxH+X+Y, found " + inQuotes(text);
    Rect frame;
    for (const auto& [part, value] : {std::pair{parts->width, &frame.size.width},
                                      {parts->height, &frame.size.height},
                                      {parts->x, &frame.origin.x},
                                      {parts->y, &frame.origin.y}}) {
        const auto number = numberInRange(part);
        if (!number)
            return "expected a number from -1000000 to 1000000, found " + inQuotes(part);
        *value = *number;
    }
    if (frame.size.width < SmallestSize)
        return "expected a width of at least 0.001, found " + inQuotes(parts->width);
    if (frame.size.height < SmallestSize)
        return "expected a height of at least 0.001, found " + inQuotes(parts->height);
    return frame;
}

bool overlap(const Rect& one, const Rect& other) {
    const double width = std::min(one.maxX(), other.maxX()) - std::max(one.minX(), other.minX());
    const double height = std::min(one.maxY(), other.maxY()) - std::max(one.minY(), other.minY());
    return width > OverlapTolerance && height > OverlapTolerance;
}

// What is wrong with adding the display to those before it; absent when nothing is.
std::optional<std::string> misplacement(const Rect& frame, const std::vector<Rect>& earlier,
                                        std::string_view text) {
    if (earlier.empty() && frame.origin != Point{})
        return "expected the primary display at +0+0, found " + inQuotes(text);
    for (std::size_t index = 0; index < earlier.size(); ++index) {
        if (overlap(frame, earlier[index]))
            return "expected no overlap, found one with display " + std::to_string(index + 1);
    }
    return std::nullopt;
}

InputError displayError(std::size_t number, const std::string& what) {
    return {"--displays: display " + std::to_string(number) + ": " + what};
}

} // namespace

std::variant<std::vector<Rect>, InputError> parseDisplayList(std::string_view text) {
    std::vector<Rect> frames;
    for (bool isLast = false; !isLast;) {
        const std::size_t number = frames.size() + 1;
        if (number > MostDisplays)
            return displayError(number, "expected at most 16 displays");
        const std::size_t comma = text.find(',');
        isLast = comma == std::string_view::npos;
        const std::string_view item = text.substr(0, comma);
        const DisplayResult parsed = parseDisplay(item);
        if (const auto* problem = std::get_if<std::string>(&parsed))
            return displayError(number, *problem);
        const Rect frame = std::get<Rect>(parsed);
        if (const auto problem = misplacement(frame, frames, item))
            return displayError(number, *problem);
        frames.push_back(frame);
        if (!isLast)
            text.remove_prefix(comma + 1);
    }
    return frames;
}

} // namespace kestrune::replay
