#include "platform/ProcessInfo.h"

#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

// There is one; it is asked for with each call.
ProcessInfo ProcessInfo::processInfo() { return {}; }

OperatingSystemVersion ProcessInfo::operatingSystemVersion() const {
    const mac::Pool pool;
    const id information = mac::foundation.processInfo.processInfo();
    return mac::foundation.processInfo.operatingSystemVersion(information);
}

} // namespace kestrune
