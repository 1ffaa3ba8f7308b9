// What a Mac has and no test can arrange or see there: nearly each of these skips the test that asks for it.
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/contract/World.h"
#include "tests/mac/Objects.h"
#include "tests/mac/Preparation.h"
#include "tests/mac/Skips.h"
#include "tests/mac/WorldState.h"

#include <cstdio>

// NOLINTNEXTLINE(readability-identifier-naming): the name is Foundation's.
extern "C" const id NSLocaleIdentifier;

namespace kestrune::contract {

using native::cannotArrange;

namespace {

constexpr const char* Displays = "displays that a test may plug in";
constexpr const char* SystemDialogs = "look at the system's dialogs and lists for a test";
constexpr const char* PointerEvents = "pointer that a test may move";
constexpr const char* LoginItems = "login item that a test may change";
constexpr const char* Updates = "Sparkle in its tests";
constexpr const char* OpenedURLs = "URL that a test may open";

} // namespace

void World::connect(const std::vector<ConnectedDisplay>& /*displays*/) { cannotArrange(Displays); }

void World::setMainDisplay(std::optional<std::size_t> /*index*/) { cannotArrange(Displays); }

void World::failUUIDStrings() { cannotArrange(Displays); }

Trust World::trust() const { cannotArrange(SystemDialogs); }

bool World::isTrustDialogShown() const { cannotArrange(SystemDialogs); }

void World::followTrustDialog() { cannotArrange(SystemDialogs); }

std::optional<DeliveredEvent> World::deliver(EventType /*type*/, Point /*location*/) {
    cannotArrange(PointerEvents);
}

void World::switchTapsOff(EventType /*reason*/) { cannotArrange(PointerEvents); }

void World::clickTitleBar(std::size_t /*window*/) { cannotArrange(PointerEvents); }

std::vector<LoggedMessage> World::loggedMessages() const {
    cannotArrange("log that a test can read back at once");
}

void World::catchTermination(const std::function<void()>& /*work*/) {
    cannotArrange("termination that comes back");
}

std::size_t World::statusItemCount() const { cannotArrange("menu bar that a test can look at"); }

AppServiceStatus World::loginItem() const { cannotArrange(LoginItems); }

void World::setLoginItem(AppServiceStatus /*status*/) { cannotArrange(LoginItems); }

void World::requireApprovalOfLoginItem() { cannotArrange(LoginItems); }

// NOLINTNEXTLINE(performance-unnecessary-value-param): other worlds keep it.
void World::refuseLoginItemChanges(std::string /*description*/) { cannotArrange(LoginItems); }

std::vector<std::string> World::loginItemMessages() const { cannotArrange(LoginItems); }

// Read from the file that says it, not from the process information that is tested.
OperatingSystemVersion World::operatingSystemVersion() const {
    const mac::Pool pool;
    const id file =
        native::send(native::classObject("NSDictionary"),
                     "dictionaryWithContentsOfFile:", native::objectFor(native::systemVersionFile()));
    const std::string text =
        mac::textOf(native::send(file, "objectForKey:", native::objectFor("ProductVersion")));
    OperatingSystemVersion version{};
    if (std::sscanf(text.c_str(), "%ld.%ld.%ld", &version.majorVersion, &version.minorVersion,
                    &version.patchVersion) < 2) {
        cannotArrange("file that tells its version");
    }
    return version;
}

// By its other name; that it is the user's has to be seen.
std::string World::localeIdentifier() const {
    const mac::Pool pool;
    return mac::textOf(native::send(native::send(native::classObject("NSLocale"), "currentLocale"),
                                    "objectForKey:", NSLocaleIdentifier));
}

void World::setUpdateFramework(UpdateFramework framework) {
    if (framework != UpdateFramework::missing) {
        cannotArrange(Updates);
    }
    state_->isWithoutUpdateFramework = true;
}

// Nobody can be asked for anything without it.
std::vector<std::string> World::updateMessages() const {
    if (!state_->isWithoutUpdateFramework) {
        cannotArrange(Updates);
    }
    return {};
}

std::optional<bool> World::asksForGentleReminders() const {
    if (!state_->isWithoutUpdateFramework) {
        cannotArrange(Updates);
    }
    return std::nullopt;
}

void World::announceUpdate() { cannotArrange(Updates); }

void World::finishUpdateSession() { cannotArrange(Updates); }

void World::showUpdateAlert(const std::function<void()>& /*whileShown*/) { cannotArrange(Updates); }

std::vector<std::string> World::openedURLs() const { cannotArrange(OpenedURLs); }

void World::letNobodyOpenURLs() { cannotArrange(OpenedURLs); }

} // namespace kestrune::contract
