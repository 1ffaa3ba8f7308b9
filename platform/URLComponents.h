// Uniform resource locators from their parts, each of which the platform encodes by its own rules.
//
// Source: Foundation, NSURL.h (NSURLComponents, NSURLQueryItem).
#pragma once

#include "platform/URL.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kestrune {

// NSURLQueryItem. UTF-8, not encoded.
struct URLQueryItem {
    std::string name;
    std::optional<std::string> value; // without one there is no "=" either
};

// A retained NSURLComponents.
class URLComponents {
public:
    // init: no part is there.
    URLComponents();

    // setScheme:. ASCII letters, digits, "+", "-" and ".", the first one a letter; anything else stops the
    // process.
    void setScheme(std::string_view scheme);

    // setPath:. UTF-8, not encoded.
    void setPath(std::string_view path);

    // setQueryItems:.
    void setQueryItems(std::span<const URLQueryItem> items);

    // URL. Absent when the parts do not make one, as with a path that begins with two slashes.
    std::optional<URL> url() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace kestrune
