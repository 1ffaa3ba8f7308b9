// GNUstep and what stands in for the Mac, in the place of AppKit for the tests that a Mac runs.
#include "mac/objc/Pool.h"
#include "platform/MainActor.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/appkit/Activation.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/runtime/Methods.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/AccessibilityTrust.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "tests/gnustep/standins/system/OperatingSystem.h"
#include "tests/mac/Preparation.h"
#include "tests/scenarios/ShippedBundle.h"

#include <fstream>

namespace kestrune::gnustep {

using native::preparation;
using native::systemVersionFile;

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

// The Finder, as far as somebody activates it.
id runningApplications(id, SEL, id) {
    const id finder = send(send(classObject("NSRunningApplication"), "alloc"), "init");
    return send(classObject("NSArray"), "arrayWithObject:", send(finder, "autorelease"));
}

BOOL activate(id, SEL, mac::Unsigned) {
    MainActor::startTask([] { setActive(false); });
    return mac::truth(true);
}

void installFinder() {
    const Class applications = classNamed("NSRunningApplication");
    replaceMethod(classOf(applications), "runningApplicationsWithBundleIdentifier:", runningApplications);
    replaceMethod(applications, "activateWithOptions:", activate);
}

// A Mac with one display, in front of a user who gave no permission, and without Sparkle.
void makeAMac() {
    if (privateHome().empty()) { // in a program that is none of GoogleTest
        enterPrivateHome();
    }
    const mac::Pool pool;
    installStandIns();
    installFinder();
    setMainBundle(ownBundle(), privateHome());
    setUpdateFramework(contract::UpdateFramework::missing);
    accessibilityRow() = {};
    accessibilityRow().trust = contract::Trust::notListed;
    connectDisplays(
        {{1, "Built-in", {0, 0, 1512, 982}, "37D8832A-2D66-02CA-B9F7-8F30A301B230", std::int64_t{1}}});
    writeSystemVersion();
}

[[maybe_unused]] const bool IsPrepared = (preparation() = makeAMac, true);

} // namespace

} // namespace kestrune::gnustep
