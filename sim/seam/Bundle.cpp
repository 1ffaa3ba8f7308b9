#include "platform/Bundle.h"

#include "sim/session/Session.h"

namespace kestrune {

Bundle Bundle::mainBundle() {
    sim::Session::current().journal().record("NSBundle.mainBundle");
    return {};
}

std::optional<std::string> Bundle::bundleIdentifier() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSBundle bundleIdentifier]");
    return session.bundle().infoString("CFBundleIdentifier");
}

std::optional<std::string> Bundle::infoDictionaryString(std::string_view key) const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSBundle infoDictionary][", key, "]");
    return session.bundle().infoString(key);
}

std::string Bundle::localizedString(std::string_view key) const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSBundle localizedStringForKey:value:table:] ", key);
    const auto& strings = session.bundle().localizedStrings;
    const auto entry = strings.find(key);
    return entry != strings.end() ? entry->second : std::string(key);
}

} // namespace kestrune
