#include "sim/neighbours/MailLink.h"

#include "base/Utf8.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace kestrune::sim {

namespace {

constexpr std::string_view Scheme = "mailto:";

// The part before the separator; the text goes on behind it, and is empty where there is none.
std::string_view takeUntil(char separator, std::string_view& text) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

std::optional<char> encodedByte(std::string_view digits) {
    constexpr int Hexadecimal = 16;
    unsigned char value = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value, Hexadecimal);
    const bool isWhole = digits.size() == 2 && result.ec == std::errc() && result.ptr == end;
    return isWhole ? std::optional(static_cast<char>(value)) : std::nullopt;
}

// False when the value cannot be decoded.
bool readHeader(std::string_view header, MailLink& mail) {
    const std::string_view name = takeUntil('=', header);
    auto value = percentDecoded(header);
    if (!value) {
        return false;
    }
    if (name == "subject") {
        mail.subject = *std::move(value);
    } else if (name == "body") {
        mail.body = *std::move(value);
    }
    return true;
}

} // namespace

std::optional<std::string> percentDecoded(std::string_view text) {
    constexpr std::size_t DigitCount = 2;
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '%') {
            result += text[index];
            continue;
        }
        const auto byte = encodedByte(text.substr(index + 1, DigitCount));
        if (!byte) {
            return std::nullopt;
        }
        result += *byte;
        index += DigitCount;
    }
    return firstInvalidUtf8(result) ? std::nullopt : std::optional(std::move(result));
}

std::optional<MailLink> readMailLink(std::string_view link) {
    if (!link.starts_with(Scheme)) {
        return std::nullopt;
    }
    link.remove_prefix(Scheme.size());
    auto recipient = percentDecoded(takeUntil('?', link));
    if (!recipient) {
        return std::nullopt;
    }
    MailLink mail{*std::move(recipient), {}, {}};
    while (!link.empty()) {
        if (!readHeader(takeUntil('&', link), mail)) {
            return std::nullopt;
        }
    }
    return mail;
}

} // namespace kestrune::sim
