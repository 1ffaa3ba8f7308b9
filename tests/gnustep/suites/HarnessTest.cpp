// What the tests on GNUstep rely on.
#include "mac/objc/Text.h"
#include "platform/Timer.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/harness/TimeLimit.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>

namespace kestrune::gnustep {
namespace {

namespace fs = std::filesystem;

TEST(PrivateHome, IsWhereGNUstepKeepsTheDefaults) {
    const id defaults = send(classObject("NSUserDefaults"), "standardUserDefaults");
    send<void>(defaults, "setObject:forKey:", objectFor("value"), objectFor("key"));
    EXPECT_NE(send<BOOL>(defaults, "synchronize"), 0);
    const fs::path file = fs::path(privateHome()) / "GNUstep" / "Defaults" / "harness_tests_gnustep.plist";
    const id written =
        send(classObject("NSDictionary"), "dictionaryWithContentsOfFile:", objectFor(file.string()));
    EXPECT_EQ(mac::textOf(send(written, "objectForKey:", objectFor("key"))), "value");
}

TEST(PrivateHome, HasTheSettingsThatTheTestsNeed) {
    const id defaults = send(classObject("NSUserDefaults"), "standardUserDefaults");
    EXPECT_EQ(mac::textOf(send(defaults, "stringForKey:", objectFor("GSSuppressAppIcon"))), "YES");
}

using TimeLimitDeathTest = testing::Test;

TEST_F(TimeLimitDeathTest, TellsWhereTheMainThreadIs) {
    EXPECT_DEATH(
        {
            limitTime(60);
            std::raise(SIGALRM);
        },
        "The time limit is over.*RunAllTests");
}

// An hour of the run loop's own time.
TEST(VirtualTime, PassesWithoutWaiting) {
    const auto start = std::chrono::steady_clock::now();
    int firings = 0;
    const Timer timer = Timer::scheduledTimer(600, true, [&firings](Timer& /*timer*/) { ++firings; });
    const id limit = send(classObject("NSDate"), "dateWithTimeIntervalSinceNow:", 3630.0);
    send<void>(send(classObject("NSRunLoop"), "currentRunLoop"), "runUntilDate:", limit);
    EXPECT_EQ(firings, 6);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::minutes(1));
}

} // namespace
} // namespace kestrune::gnustep
