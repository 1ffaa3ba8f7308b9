// What a mail link asks a mail program for.
//
// Source: RFC 6068, the mailto URI scheme; RFC 3986, percent-encoding.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::sim {

struct MailLink {
    std::string recipient;
    std::string subject;
    std::string body;
};

// Decoded. Absent for anything but a link with the scheme mailto that can be decoded; headers other than
// subject and body are left out.
std::optional<MailLink> readMailLink(std::string_view link);

// Absent when a percent sign is not followed by two hexadecimal digits, or the result is no UTF-8. A plus
// sign stands for itself: only forms have it for a blank.
std::optional<std::string> percentDecoded(std::string_view text);

} // namespace kestrune::sim
