#include "platform/CrashReport.h"

#include "mac/c/CrashReporter.h"

namespace kestrune {

namespace {

// Nobody in the process reads it.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
[[gnu::used,
  gnu::section(CRASHREPORTER_ANNOTATIONS_SECTION)]] constinit crashreporter_annotations_t annotations;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

// The text is there as long as the process, which may be crashing already.
void setCrashReportMessage(const std::string& message) {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    static std::string& kept = *new std::string;
    kept = message;
    annotations.message = reinterpret_cast<std::uintptr_t>(kept.c_str());
}

} // namespace kestrune
