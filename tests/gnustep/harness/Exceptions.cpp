#include "tests/gnustep/harness/Exceptions.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/gnustep/harness/Send.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace kestrune::gnustep {

namespace {

std::string& latest() {
    static thread_local std::string text;
    return text;
}

class Reporter : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override { latest().clear(); }

    void OnTestPartResult(const testing::TestPartResult& result) override {
        if (result.failed() && !latest().empty()) {
            std::printf("Latest Objective-C exception: %s\n", latest().c_str());
        }
    }
};

} // namespace

void reportExceptions() { testing::UnitTest::GetInstance()->listeners().Append(new Reporter); }

// GNUstep finds this in the program before the runtime's.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" [[noreturn]] void objc_exception_throw(id exception) {
    using Throw = void(id);
    static auto* const next = reinterpret_cast<Throw*>(dlsym(RTLD_NEXT, "objc_exception_throw"));
    {
        const mac::Pool pool;
        latest() = mac::textOf(send(exception, "name")) + ": " + mac::textOf(send(exception, "reason"));
    }
    next(exception);
    std::abort();
}

} // namespace kestrune::gnustep
