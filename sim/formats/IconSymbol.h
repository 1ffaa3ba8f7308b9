// The icon of an application in a view: a symbol with a name that no platform has.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::sim {

inline constexpr std::string_view IconSymbolPrefix = "application-icon:";

// The symbol for the icon in that PNG file, as large as its font; without a file a general icon.
inline std::string iconSymbol(std::string_view path) { return std::string(IconSymbolPrefix).append(path); }

// Absent for any other symbol.
inline std::optional<std::string> pathOfIcon(std::string_view symbol) {
    return symbol.starts_with(IconSymbolPrefix)
               ? std::optional<std::string>(symbol.substr(IconSymbolPrefix.size()))
               : std::nullopt;
}

} // namespace kestrune::sim
