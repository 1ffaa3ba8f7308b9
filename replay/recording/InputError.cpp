#include "replay/recording/InputError.h"

namespace kestrune::replay {
namespace {

constexpr std::size_t QuotedLimit = 40;

std::string hexEscape(unsigned char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    return {'\\', 'x', digits[byte >> 4U], digits[byte & 0xFU]};
}

std::string visibleCharacter(char character) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20 || byte > 0x7E)
        return hexEscape(byte);
    if (character == '"' || character == '\\')
        return {'\\', character};
    return {character};
}

} // namespace

std::string onOneLine(std::string_view text) {
    std::string visible;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7F)
            visible += hexEscape(byte);
        else
            visible += character;
    }
    return visible;
}

InputError inputError(FileLine where, std::string_view what) {
    return {onOneLine(where.file) + ":" + std::to_string(where.line) + ": " + std::string(what)};
}

InputError inputError(std::string_view file, std::string_view what) {
    return {onOneLine(file) + ": " + std::string(what)};
}

std::string inQuotes(std::string_view text) {
    std::string visible;
    for (const char character : text) {
        const std::string next = visibleCharacter(character);
        if (visible.size() + next.size() > QuotedLimit)
            return '"' + visible + "\"...";
        visible += next;
    }
    return '"' + visible + '"';
}

} // namespace kestrune::replay
