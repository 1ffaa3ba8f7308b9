#include "platform/Locale.h"

#include "sim/session/Session.h"

namespace kestrune {

Locale Locale::currentLocale() {
    sim::Session::current().journal().record("NSLocale.currentLocale");
    return {};
}

std::string Locale::localeIdentifier() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSLocale localeIdentifier]");
    return session.surroundings().localeIdentifier;
}

} // namespace kestrune
