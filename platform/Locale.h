// The user's language and region.
//
// Source: Foundation, NSLocale.h.
#pragma once

#include <string>

namespace kestrune {

class Locale {
public:
    // NSLocale.currentLocale.
    static Locale currentLocale();

    // localeIdentifier, such as "en_US", or "en_GB@rg=uszzzz" for a region that is not the language's.
    std::string localeIdentifier() const;

private:
    Locale() = default;
};

} // namespace kestrune
