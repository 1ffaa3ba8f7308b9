// What the platform is told that the application's delegates are, and what becomes of it where it has no such
// protocols.
#include "mac/Protocols.h"

#include "mac/objc/Pool.h"
#include "tests/gnustep/Objects.h"
#include "tests/gnustep/SettingsFixture.h"
#include "tests/gnustep/standins/Protocols.h"

#include <string>

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

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

LoggedMessage missing(const std::string& protocol) {
    return {LoggedMessage::Level::error, "org.kestrune.Kestrune", "app",
            "There is no protocol " + protocol + " at run time",
            "There is no protocol %{public}s at run time"};
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

TEST_F(ProtocolsOnGNUstep, AreNamedOnceWhenTheyAreMissing) {
    mac::adopt(classNamed("NSObject"), "SPUMissingDelegate");
    mac::adopt(classNamed("NSArray"), "SPUMissingDelegate");
    mac::adopt(classNamed("NSArray"), "SPUOtherDelegate");
    EXPECT_THAT(world_.loggedMessages(),
                ElementsAre(missing("SPUMissingDelegate"), missing("SPUOtherDelegate")));
}

struct LeftOut {
    LeftOut() { leaveDelegateProtocolsOut(); }
};

// In this order: what is left out has to be so before there is a world.
class WithoutProtocols : LeftOut, public SettingsFixture {};

TEST_F(WithoutProtocols, TheApplicationGoesOnAndItsDelegatesAreCalled) {
    launchAndOpen();
    EXPECT_THAT(titles(), ElementsAre("Kestrune Settings"));
    world_.clickCloseButton();
    world_.runMainQueue();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    std::vector<LoggedMessage> errors;
    for (const LoggedMessage& message : logged("app")) {
        if (message.level == LoggedMessage::Level::error) {
            errors.push_back(message);
        }
    }
    EXPECT_THAT(errors, UnorderedElementsAre(missing("NSApplicationDelegate"), missing("NSMenuDelegate"),
                                             missing("NSWindowDelegate")));
    EXPECT_THAT(protocolsOf("KestruneApp"), IsEmpty());
}

} // namespace
} // namespace kestrune::gnustep
