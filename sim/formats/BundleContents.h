// What lies in the application's bundle.
#pragma once

#include "sim/formats/PropertyList.h"
#include "sim/formats/StringsTable.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::sim {

struct BundleContents {
    PropertyListDictionary infoDictionary = {{"CFBundleIdentifier", {std::string("org.kestrune.Kestrune")}}};

    // The default string table of the user's language.
    StringsTable localizedStrings = {};

    // The name of each image among the resources, and the file of its sharpest representation; empty when the
    // session only has to know that there is one.
    std::map<std::string, std::string, std::less<>> images = {{"MenuBarIcon", ""}};

    // The file of the application's icon, empty without one.
    std::string iconFile() const;

    // What stands for the key in the string table, without an entry the key itself.
    std::string localized(std::string_view key) const;

    // A value of the Info.plist, if it is a string.
    std::optional<std::string> infoString(std::string_view key) const;

    // A value of the Info.plist as a truth value, false when there is none.
    bool infoFlag(std::string_view key) const;
};

} // namespace kestrune::sim
