#include "mac/objc/Missing.h"

#include "platform/Bundle.h"

#include <unordered_set>

namespace kestrune::mac {

// A text is known before it is logged, as the log's own messages may be what is missing.
void logOnce(LogFormat format, const std::string& text) {
    static std::unordered_set<std::string> logged;
    if (logged.insert(text).second) {
        Log(Bundle::mainBundle().bundleIdentifier().value_or(""), "app").error(format, text);
    }
}

} // namespace kestrune::mac
