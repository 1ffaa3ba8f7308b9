#include "mac/vocabulary/Missing.h"

#include "platform/Bundle.h"

#include <unordered_set>

namespace kestrune::mac {

namespace {

constexpr LogFormat MissingClass = LogFormat::of<"There is no class %{public}s at run time">();
constexpr LogFormat MissingMethod = LogFormat::of<"There is no method %{public}s at run time">();

} // namespace

// A text is known before it is logged, as the log's own messages may be what is missing.
void logOnce(LogFormat format, const std::string& text) {
    static std::unordered_set<std::string> logged;
    if (logged.insert(text).second) {
        Log(Bundle::mainBundle().bundleIdentifier().value_or(""), "app").error(format, text);
    }
}

void logMissingClass(const std::string& name) { logOnce(MissingClass, name); }

void logMissingMethod(const std::string& name) { logOnce(MissingMethod, name); }

} // namespace kestrune::mac
