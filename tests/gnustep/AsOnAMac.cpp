// GNUstep and what stands in for the Mac, in the place of AppKit for the tests that a Mac runs.
#include "tests/gnustep/Objects.h"
#include "tests/gnustep/PrivateHome.h"
#include "tests/gnustep/standins/AccessibilityTrust.h"
#include "tests/gnustep/standins/MainBundle.h"
#include "tests/gnustep/standins/OperatingSystem.h"
#include "tests/gnustep/standins/Screens.h"
#include "tests/gnustep/standins/Sparkle.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/mac/Preparation.h"
#include "tests/scenarios/ShippedBundle.h"

#include <fstream>

namespace kestrune::gnustep {

namespace {

void writeSystemVersion() {
    const std::string path = privateHome() + "/SystemVersion.plist";
    const auto [major, minor, patch] = SystemVersion;
    std::ofstream(path) << "{ ProductVersion = \"" << major << '.' << minor << '.' << patch << "\"; }\n";
    systemVersionFile() = path;
}

// That of the test program, in which a Mac finds what the tests ask for.
contract::BundleFiles ownBundle() {
    contract::BundleFiles files = scenarios::shippedBundle();
    files.imageNames.insert(files.imageNames.end(), {"ContractImage", "Other"});
    return files;
}

// A Mac with one display, in front of a user who gave no permission, and without Sparkle.
void makeAMac() {
    installStandIns();
    setMainBundle(ownBundle(), privateHome());
    setUpdateFramework(contract::UpdateFramework::missing);
    accessibilityRow() = {};
    accessibilityRow().trust = contract::Trust::notListed;
    connectDisplays({contract::connectedDisplay(1, {0, 0, 1512, 982})});
    writeSystemVersion();
}

[[maybe_unused]] const bool IsPrepared = (preparation() = makeAMac, true);

} // namespace

} // namespace kestrune::gnustep
