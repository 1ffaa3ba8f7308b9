#include "platform/ProcessInfo.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/Surroundings.h"

namespace kestrune {

ProcessInfo ProcessInfo::processInfo() {
    sim::recordCall("NSProcessInfo.processInfo");
    return {};
}

OperatingSystemVersion ProcessInfo::operatingSystemVersion() const {
    sim::recordCall("-[NSProcessInfo operatingSystemVersion]");
    return sim::current<const sim::Surroundings>().operatingSystemVersion;
}

} // namespace kestrune
