#include "sim/formats/BundleContents.h"

namespace kestrune::sim {

std::string BundleContents::iconFile() const {
    const auto icon = images.find("AppIcon");
    return icon != images.end() ? icon->second : "";
}

std::string BundleContents::localized(std::string_view key) const {
    const auto entry = localizedStrings.find(key);
    return entry != localizedStrings.end() ? entry->second : std::string(key);
}

std::optional<std::string> BundleContents::infoString(std::string_view key) const {
    const auto entry = infoDictionary.find(key);
    const auto* text =
        entry != infoDictionary.end() ? std::get_if<std::string>(&entry->second.value) : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

bool BundleContents::infoFlag(std::string_view key) const {
    const auto entry = infoDictionary.find(key);
    return entry != infoDictionary.end() && entry->second.asBool();
}

} // namespace kestrune::sim
