// A process that aborts loses its coverage counters. In the build that measures coverage, the processes of
// the death tests write them first, so that what ends in abort counts as covered.
#ifdef KESTRUNE_COVERAGE

#include <gtest/gtest.h>

#include <csignal>

// The compiler's own header forgets that the functions are C.
extern "C" {
#include <gcov.h>
}

namespace {

// abort() ends the process once this returns. Writing files is allowed here, because abort() was called by
// this thread and interrupts nothing.
void writeCounters(int /*signal*/) { __gcov_dump(); }

class FlushCoverageOnAbort : public testing::Environment {
    void SetUp() override { std::signal(SIGABRT, writeCounters); }
};

// The framework owns and deletes it.
const testing::Environment* const Registered =
    testing::AddGlobalTestEnvironment(new FlushCoverageOnAbort); // NOLINT: ownership goes to the framework.

} // namespace

#endif
