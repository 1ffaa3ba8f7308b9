#include "mac/objc/Missing.h"

#include "platform/Bundle.h"

#include <unordered_set>

namespace kestrune::mac {

// A name is known before it is logged, as the log's own messages may be what is missing.
void logMissing(LogFormat format, const std::string& name) {
    static std::unordered_set<std::string> logged;
    if (logged.insert(name).second) {
        Log(Bundle::mainBundle().bundleIdentifier().value_or(""), "app").error(format, name);
    }
}

} // namespace kestrune::mac
