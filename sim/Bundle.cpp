#include "platform/Bundle.h"

#include "sim/Session.h"

namespace kestrune {

std::optional<std::string> Bundle::mainBundleIdentifier() {
    sim::Session& session = sim::Session::current();
    session.journal().record("NSBundle.mainBundle.bundleIdentifier");
    return session.bundleIdentifier();
}

} // namespace kestrune
