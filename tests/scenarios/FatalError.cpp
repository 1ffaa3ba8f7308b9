// A user's Kestrune ends because an assumption was broken: where the reason is to be found afterwards, the
// same on every implementation of the seam.
#include "tests/LastWords.h"
#include "tests/contract/World.h"
#include "tests/scenarios/LaunchedApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace kestrune::scenarios {
namespace {

using contract::LoggedMessage;

constexpr const char* Expected = "Fatal error: A display's width or height is no number of points that an "
                                 "integer can hold.";

void tellWhatIsKept(const contract::World& world) {
    for (const LoggedMessage& message : world.loggedMessages()) {
        if (message.level == LoggedMessage::Level::error) {
            std::fprintf(stderr, "log of %s, %s: %s\n", message.subsystem.c_str(), message.category.c_str(),
                         message.message.c_str());
        }
    }
    std::fprintf(stderr, "crash report: %s\n", world.crashReportMessage().c_str());
}

// No system has such a display; an application that is as it should be stops at nothing else.
void launchWithAnImpossibleDisplay() {
    contract::World world(shippedBundle());
    world.connect({contract::connectedDisplay(1, {0, 0, 1e300, 982})});
    world.setTrust(contract::Trust::granted);
    beforeAborting([&world] { tellWhatIsKept(world); });
    const LaunchedApplication application(world);
}

TEST(FatalErrorDeathTest, IsOnStandardErrorInTheLogAndInTheCrashReport) {
    const std::string line = Expected;
    EXPECT_DEATH(launchWithAnImpossibleDisplay(), "(^|\n)" + line + "\n(.*\n)*" +
                                                      "log of org\\.kestrune\\.Kestrune, app: " + line +
                                                      "\n(.*\n)*crash report: " + line + "\n");
}

} // namespace
} // namespace kestrune::scenarios
