// What the system's crash reporter would find in this process.
#include "mac/c/CrashReporter.h"
#include "tests/contract/World.h"

// The linker's name for the beginning of the section that it looks into.
#ifdef __APPLE__
#define BEGINNING "section$start$__DATA$__crash_info"
#else
#define BEGINNING "__start___crash_info"
#endif
extern "C" crashreporter_annotations_t annotationsForCrashReports __asm(BEGINNING);

namespace kestrune::contract {

std::string World::crashReportMessage() const {
    const std::uint64_t message = annotationsForCrashReports.message;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the annotations hold addresses as numbers.
    return message != 0 ? reinterpret_cast<const char*>(message) : "";
}

} // namespace kestrune::contract
