#include "tests/scenarios/ShippedBundle.h"

#include "base/Fatal.h"
#include "sim/formats/ResourceFolder.h"

#include <variant>

namespace kestrune::scenarios {

contract::BundleFiles shippedBundle() {
    const auto loaded = sim::loadResourceFolder(KESTRUNE_RESOURCES);
    if (const auto* const error = std::get_if<std::string>(&loaded)) {
        fatal(*error);
    }
    const auto& contents = std::get<sim::BundleContents>(loaded);
    contract::BundleFiles files;
    for (const auto& [key, value] : contents.infoDictionary) {
        if (const auto text = value.asString()) {
            files.infoDictionary.emplace(key, *text);
        }
    }
    files.localizedStrings.insert(contents.localizedStrings.begin(), contents.localizedStrings.end());
    for (const auto& [name, file] : contents.images) {
        files.imageNames.push_back(name);
    }
    return files;
}

} // namespace kestrune::scenarios
