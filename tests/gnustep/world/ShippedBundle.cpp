#include "tests/scenarios/ShippedBundle.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/mac/Objects.h"

#include <map>
#include <string>

namespace kestrune::scenarios {

namespace {

using native::classObject;
using native::objectFor;
using native::send;

const std::string Resources = KESTRUNE_RESOURCES;

// The platform's own reader of property lists and of tables of strings.
std::map<std::string, std::string> textsIn(const std::string& file) {
    const id dictionary = send(classObject("NSDictionary"), "dictionaryWithContentsOfFile:", objectFor(file));
    if (dictionary == nullptr) {
        fatal("The platform cannot read " + file + ".");
    }
    const id keys = send(dictionary, "allKeys");
    std::map<std::string, std::string> texts;
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(keys); ++index) {
        const id key = mac::foundation.array.objectAtIndex(keys, index);
        if (const auto text = mac::textIfString(mac::foundation.dictionary.objectForKey(dictionary, key))) {
            texts.emplace(mac::textOf(key), *text);
        }
    }
    return texts;
}

} // namespace

contract::BundleFiles shippedBundle() {
    const mac::Pool pool;
    contract::BundleFiles files;
    for (const auto& [key, value] : textsIn(KESTRUNE_INFORMATION)) {
        files.infoDictionary.emplace(key, value);
    }
    files.localizedStrings = textsIn(Resources + "/en.lproj/Localizable.strings");
    files.imageNames = {"MenuBarIcon"};
    return files;
}

} // namespace kestrune::scenarios
