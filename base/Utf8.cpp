#include "base/Utf8.h"

namespace kestrune {
namespace {

unsigned char byteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
}

bool isContinuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

// The second byte's range depends on the first: it is what excludes overlong forms, surrogates and large
// values.
bool isSecondByte(unsigned char first, unsigned char second) {
    switch (first) {
    case 0xE0:
        return second >= 0xA0 && second <= 0xBF;
    case 0xED:
        return second >= 0x80 && second <= 0x9F;
    case 0xF0:
        return second >= 0x90 && second <= 0xBF;
    case 0xF4:
        return second >= 0x80 && second <= 0x8F;
    default:
        return isContinuation(second);
    }
}

// Number of bytes of the character that starts the text; 0 when none does.
std::size_t characterLength(std::string_view text) {
    const unsigned char first = byteAt(text, 0);
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4 || !isSecondByte(first, byteAt(text, 1)))
        return 0;
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    for (std::size_t index = 2; index < length; ++index) {
        if (!isContinuation(byteAt(text, index)))
            return 0;
    }
    return length;
}

} // namespace

std::optional<std::size_t> firstInvalidUtf8(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t length = characterLength(text.substr(offset));
        if (length == 0)
            return offset;
        offset += length;
    }
    return std::nullopt;
}

} // namespace kestrune
