#include "mac/Protocols.h"

#include "platform/Bundle.h"
#include "platform/Log.h"

#include <string>
#include <unordered_set>

namespace kestrune::mac {

namespace {

constexpr LogFormat Missing = LogFormat::of<"There is no protocol %{public}s at run time">();

void logMissing(const char* protocolName) {
    static std::unordered_set<std::string> logged;
    if (logged.insert(protocolName).second) {
        Log(Bundle::mainBundle().bundleIdentifier().value_or(""), "app").error(Missing, protocolName);
    }
}

} // namespace

void adopt(Class type, const char* protocolName) {
    Protocol* const protocol = objc_getProtocol(protocolName);
    if (protocol == nullptr) {
        logMissing(protocolName);
    } else {
        class_addProtocol(type, protocol);
    }
}

} // namespace kestrune::mac
