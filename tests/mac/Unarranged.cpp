// What a Mac has and no test can arrange or see there: each of these skips the test that asks for it.
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/contract/World.h"
#include "tests/mac/Objects.h"
#include "tests/mac/Preparation.h"
#include "tests/mac/Skips.h"
#include "tests/mac/WorldState.h"

#include <cstdio>

namespace kestrune::contract {

using native::cannotArrange;

namespace {

constexpr const char* Displays = "displays that a test may plug in";
constexpr const char* SystemDialogs = "look at the system's dialogs and lists for a test";
constexpr const char* PointerEvents = "pointer that a test may move";
constexpr const char* LoginItems = "login item that a test may change";
constexpr const char* Updates = "Sparkle in its tests";
constexpr const char* OpenedURLs = "URL that a test may open";
constexpr const char* OtherApplications = "other application that a test may bring to the front";

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

std::string World::crashReportMessage() const { cannotArrange("crash report of a process that runs"); }

void World::catchTermination(const std::function<void()>& /*work*/) {
    cannotArrange("termination that comes back");
}

void World::activateAnotherApplication() { cannotArrange(OtherApplications); }

std::size_t World::statusItemCount() const { cannotArrange("menu bar that a test can look at"); }

AppServiceStatus World::loginItem() const { cannotArrange(LoginItems); }

void World::setLoginItem(AppServiceStatus /*status*/) { cannotArrange(LoginItems); }

void World::requireApprovalOfLoginItem() { cannotArrange(LoginItems); }

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

std::string World::localeIdentifier() const { cannotArrange("language that a test may choose"); }

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
