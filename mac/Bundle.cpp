#include "platform/Bundle.h"

#include "mac/MainBundle.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

// There is one; it is asked for with each call.
Bundle Bundle::mainBundle() { return {}; }

std::optional<std::string> Bundle::bundleIdentifier() const {
    const mac::Pool pool;
    return mac::textIfString(mac::foundation.bundle.bundleIdentifier(mac::theMainBundle()));
}

std::optional<std::string> Bundle::infoDictionaryString(std::string_view key) const {
    const mac::Pool pool;
    const id dictionary = mac::foundation.bundle.infoDictionary(mac::theMainBundle());
    return mac::textIfString(mac::foundation.dictionary.objectForKey(dictionary, mac::nsString(key).get()));
}

std::string Bundle::localizedString(std::string_view key) const {
    const mac::Pool pool;
    return mac::textOf(mac::foundation.bundle.localizedString(mac::theMainBundle(), mac::nsString(key).get(),
                                                              mac::nsString("").get(), nullptr));
}

} // namespace kestrune
