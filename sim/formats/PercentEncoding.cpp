#include "sim/formats/PercentEncoding.h"

namespace kestrune::sim {

namespace {

// Beside letters and digits.
constexpr std::string_view LiteralInQueries = "-._~!$'()*+,;:@/?";
constexpr std::string_view LiteralInPaths = "-._~!$'()*+,;:@/&=";

bool isLetterOrDigit(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9');
}

std::string encoded(std::string_view text, std::string_view literal) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string result;
    for (const char character : text) {
        if (isLetterOrDigit(character) || literal.find(character) != std::string_view::npos) {
            result += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            result += '%';
            result += Digits[byte / 16U];
            result += Digits[byte % 16U];
        }
    }
    return result;
}

} // namespace

std::string encodedQueryText(std::string_view text) { return encoded(text, LiteralInQueries); }

std::string encodedPath(std::string_view text) { return encoded(text, LiteralInPaths); }

} // namespace kestrune::sim
