#include "platform/ProcessInfo.h"

#include "sim/session/Session.h"

namespace kestrune {

ProcessInfo ProcessInfo::processInfo() {
    sim::Session::current().journal().record("NSProcessInfo.processInfo");
    return {};
}

OperatingSystemVersion ProcessInfo::operatingSystemVersion() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSProcessInfo operatingSystemVersion]");
    return session.surroundings().operatingSystemVersion;
}

} // namespace kestrune
