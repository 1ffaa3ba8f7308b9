// What the platform is told that the application's delegates are.
#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/suites/SettingsFixture.h"

#include <string>

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::Not;

const std::vector<const char*> EveryProtocol = {"NSApplicationDelegate", "NSMenuDelegate", "NSWindowDelegate",
                                                "SPUStandardUserDriverDelegate", "SPUUpdaterDelegate"};

// As whoever is handed an instance may ask.
std::vector<std::string> protocolsOf(const char* className) {
    const mac::Pool pool;
    const id instance = send(classObject(className), "alloc");
    std::vector<std::string> conformedTo;
    for (const char* const name : EveryProtocol) {
        Protocol* const protocol = objc_getProtocol(name);
        if (protocol != nullptr && send<BOOL>(instance, "conformsToProtocol:", protocol) != 0) {
            conformedTo.emplace_back(name);
        }
    }
    return conformedTo;
}

class ProtocolsOnGNUstep : public SettingsFixture {};

TEST_F(ProtocolsOnGNUstep, AreAdoptedByEveryDelegate) {
    launchAndOpen();
    EXPECT_THAT(protocolsOf("KestruneApp"), ElementsAre("NSApplicationDelegate"));
    EXPECT_THAT(protocolsOf("MenuBarController"), ElementsAre("NSMenuDelegate"));
    EXPECT_THAT(protocolsOf("SettingsWindowController"), ElementsAre("NSWindowDelegate"));
    EXPECT_THAT(protocolsOf("UpdaterManager"),
                ElementsAre("SPUStandardUserDriverDelegate", "SPUUpdaterDelegate"));
    EXPECT_THAT(logged("app"),
                Not(Contains(Field(&LoggedMessage::format, "There is no protocol %{public}s at run time"))));
}

TEST_F(ProtocolsOnGNUstep, AreAdoptedByTheWizards) {
    world_.setTrust(contract::Trust::switchedOff);
    launch();
    EXPECT_THAT(protocolsOf("WelcomeWindowController"), ElementsAre("NSWindowDelegate"));
}

} // namespace
} // namespace kestrune::gnustep
