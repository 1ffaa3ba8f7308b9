#include "desk/recording/InputError.h"

namespace kestrune::desk {
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

// File names keep their letters in any language; only what would break the line is escaped.
std::string visibleFileName(std::string_view name) {
    std::string visible;
    for (const char character : name) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7F)
            visible += hexEscape(byte);
        else
            visible += character;
    }
    return visible;
}

} // namespace

InputError inputError(FileLine where, std::string_view what) {
    return {visibleFileName(where.file) + ":" + std::to_string(where.line) + ": " + std::string(what)};
}

InputError inputError(std::string_view file, std::string_view what) {
    return {visibleFileName(file) + ": " + std::string(what)};
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

} // namespace kestrune::desk
