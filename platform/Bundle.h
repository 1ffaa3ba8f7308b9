// The main bundle, as far as the application asks for it.
//
// Source: Foundation, NSBundle.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune {

class Bundle {
public:
    // NSBundle.mainBundle.
    static Bundle mainBundle();

    // bundleIdentifier: CFBundleIdentifier of the Info.plist; absent when that has none.
    std::optional<std::string> bundleIdentifier() const;

    // infoDictionary[key], if it is a string.
    std::optional<std::string> infoDictionaryString(std::string_view key) const;

    // localizedStringForKey:value:table: with an empty value and no table: the text for `key` in the default
    // string table of the user's language, the key itself when it has none. UTF-8.
    std::string localizedString(std::string_view key) const;

private:
    Bundle() = default;
};

} // namespace kestrune
