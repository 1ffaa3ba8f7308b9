#include "base/Fatal.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace kestrune {

namespace {

// Never destroyed, as what runs while the process ends may be fatal, too; null for nobody.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
constinit FatalErrorReporter* theReporter = nullptr;

[[noreturn]] void endWith(const std::string& line) {
    std::fprintf(stderr, "%s\n", line.c_str());
    static std::atomic_flag isTold;
    if (theReporter != nullptr && *theReporter && !isTold.test_and_set()) {
        (*theReporter)(line);
    }
    std::abort();
}

std::string lineFor(std::string_view message) { return "Fatal error: " + std::string(message); }

} // namespace

void fatal(std::string_view message) noexcept { endWith(lineFor(message)); }

void fatal(std::string_view message, std::string_view sourcePath) noexcept {
    endWith(std::string(sourcePath) + ": " + lineFor(message));
}

void setFatalErrorReporter(FatalErrorReporter reporter) {
    auto* const next = new FatalErrorReporter(std::move(reporter));
    delete std::exchange(theReporter, next);
}

} // namespace kestrune
