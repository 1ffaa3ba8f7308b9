#include "platform/Bundle.h"

#include "sim/formats/BundleContents.h"
#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"

namespace kestrune {

Bundle Bundle::mainBundle() {
    sim::recordCall("NSBundle.mainBundle");
    return {};
}

std::optional<std::string> Bundle::bundleIdentifier() const {
    sim::recordCall("-[NSBundle bundleIdentifier]");
    return sim::current<const sim::BundleContents>().infoString("CFBundleIdentifier");
}

std::optional<std::string> Bundle::infoDictionaryString(std::string_view key) const {
    sim::recordCall("-[NSBundle infoDictionary][", key, "]");
    return sim::current<const sim::BundleContents>().infoString(key);
}

std::string Bundle::localizedString(std::string_view key) const {
    sim::recordCall("-[NSBundle localizedStringForKey:value:table:] ", key);
    return sim::current<const sim::BundleContents>().localized(key);
}

} // namespace kestrune
