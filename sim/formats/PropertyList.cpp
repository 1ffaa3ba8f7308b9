#include "sim/formats/PropertyList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <system_error>

namespace kestrune::sim {

namespace {

std::string_view withoutLeading(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

constexpr std::string_view WhiteSpace = " \t\n\v\f\r";

bool isSign(std::string_view text) { return !text.empty() && (text.front() == '+' || text.front() == '-'); }

// -[NSString boolValue]
bool boolValue(std::string_view text) {
    text = withoutLeading(text, WhiteSpace);
    if (isSign(text)) {
        text.remove_prefix(1);
    }
    text = withoutLeading(text, "0");
    return !text.empty() && std::string_view("YyTt123456789").find(text.front()) != std::string_view::npos;
}

// Of a decimal number that no double can hold: whether it is too small, rather than too large.
bool isTooSmall(std::string_view number) {
    const std::size_t mantissaLength = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaLength);
    std::int64_t exponent = 0;
    if (mantissaLength < number.size()) {
        std::string_view text = number.substr(mantissaLength + 1);
        text.remove_prefix(text.starts_with('+') ? 1 : 0);
        const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (result.ec == std::errc::result_out_of_range) {
            return text.starts_with('-');
        }
    }
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissaLength));
    const auto firstDigit = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    return exponent <= firstDigit - point;
}

// -[NSString doubleValue]: the decimal number at the head of the text. Words such as "inf" and "nan", and
// hexadecimal numbers, are no numbers here.
double doubleValue(std::string_view text) {
    text = withoutLeading(text, WhiteSpace);
    const bool negative = isSign(text) && text.front() == '-';
    if (isSign(text)) {
        text.remove_prefix(1);
    }
    if (text.empty() || std::string_view("0123456789.").find(text.front()) == std::string_view::npos) {
        return 0;
    }
    double number = 0;
    const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        const std::string_view consumed(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
        number = isTooSmall(consumed) ? 0 : std::numeric_limits<double>::infinity();
    }
    return negative ? -number : number;
}

} // namespace

bool PropertyList::asBool() const {
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return *whole != 0;
    }
    if (const auto* real = std::get_if<double>(&value)) {
        return *real != 0;
    }
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr && boolValue(*text);
}

double PropertyList::asDouble() const {
    if (const auto* real = std::get_if<double>(&value)) {
        return *real;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*whole);
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag ? 1 : 0;
    }
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr ? doubleValue(*text) : 0;
}

std::optional<std::string> PropertyList::asString() const {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag ? "1" : "0";
    }
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*whole);
    }
    if (const auto* real = std::get_if<double>(&value)) {
        return shortestText(*real);
    }
    return std::nullopt;
}

std::string shortestText(double number) {
    std::array<char, 32> text;
    const std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

} // namespace kestrune::sim
