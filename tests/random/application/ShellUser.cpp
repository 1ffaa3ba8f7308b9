#include "tests/random/application/ShellUser.h"

#include "Kestrune/BugReport.h"

#include <array>
#include <chrono>
#include <utility>

namespace kestrune::simulate {

namespace {

using std::chrono::milliseconds;

const Translations Foreign{
    {"Complete setup\xE2\x80\xA6", "Einrichtung abschlie\xC3\x9F\x65n\xE2\x80\xA6"},
    {"Pin Dock to:", "Dock festhalten auf:"},
    {"Main", "Hauptbildschirm"},
    {"Disable", "Ausschalten"},
    {"Enable", "Einschalten"},
    {"Settings\xE2\x80\xA6", "Einstellungen\xE2\x80\xA6"},
    {"Quit", "Beenden"},
    {"Quit Kestrune", "Kestrune beenden"},
    // The display's own texts are never translated, nor is the menu Edit.
    {"Edit", "Bearbeiten"},
    {"Undo", "Widerrufen"},
    {"Display 1", "Bildschirm 1"},
    {"Welcome to Kestrune", "Willkommen bei Kestrune"},
    // Whatever has this word in its title is taken for the updater's.
    {"Kestrune Settings", "Kestrune: Einstellungen und Updates"},
    {"Launch at login", "Bei der Anmeldung \xC3\xB6\x66\x66nen"},
    {"Check for Updates\xE2\x80\xA6", "Nach Updates suchen\xE2\x80\xA6"},
    {"Report a Bug\xE2\x80\xA6", "Fehler melden\xE2\x80\xA6"},
    {"Kestrune %@", "Kestrune, Fassung %@"},
    {"Kestrune bug report", "Fehler & W\xC3\xBCnsche: 100 % + mehr?"},
    {"Describe what went wrong:", "Was ging schief? #1 = \"Problem\""},
};

} // namespace

ShellUser::ShellUser(std::uint64_t seed)
    : random_(seed),
      tame_(random_.chance(0.5)),
      arrangement_(random_, tame_),
      session_(std::make_unique<ShellSession>(beginning())) {}

ShellBeginning ShellUser::beginning() {
    std::vector<sim::Display> displays;
    for (std::size_t count = random_.chance(0.1) ? 0 : 1 + random_.index(3); count > 0; --count) {
        displays.push_back(arrangement_.another(displays));
    }
    const sim::Permission initialPermission = permission();
    const StoredSwitch initialSwitch = random_.chance(0.6) ? absentSwitch() : enabled();
    const StoredChoice initialChoice = choice(displays);
    const StoredFlag initialOnboarding = onboarding();
    const Translations translations = random_.chance(0.3) ? Foreign : Translations();
    const BundleFacts facts = bundle();
    const sim::UpdateFramework initialFramework = framework();
    return {std::move(displays),
            initialPermission,
            {initialSwitch, initialChoice, initialOnboarding},
            translations,
            facts,
            initialFramework,
            std::string(SupportAddress)};
}

const std::vector<ShellUser::Choice>& ShellUser::choices() {
    static const std::vector<Choice> all{
        {3, &ShellUser::launch},
        {0.4, &ShellUser::terminate},
        {0.4, &ShellUser::kill},
        {0.4, &ShellUser::letGoOfDelegate},
        {1.5, &ShellUser::reopen},
        {2, &ShellUser::activate},
        {9, &ShellUser::openMenu},
        {1, &ShellUser::openMainMenu},
        {9, &ShellUser::choose},
        {9, &ShellUser::openAndChoose},
        {3, &ShellUser::closeMenu},
        {2, &ShellUser::press},
        {9, &ShellUser::pressButton},
        {3, &ShellUser::flipSwitch},
        {3, &ShellUser::pressReturn},
        {1, &ShellUser::pressEscape},
        {2, &ShellUser::clickWindow},
        {1.5, &ShellUser::closeWindow},
        {3, &ShellUser::changeLoginItem},
        {2.5, &ShellUser::changeUpdates},
        {3, &ShellUser::checkAsScheduled},
        {2, &ShellUser::checkInSettings},
        {5, &ShellUser::waitForUpdates},
        {2, &ShellUser::answerDialog},
        {1.5, &ShellUser::closePane},
        {0.5, &ShellUser::refuseActivation},
        {0.5, &ShellUser::refuseOpeningURLs},
        {2, &ShellUser::plug},
        {1.7, &ShellUser::unplug},
        {0.3, &ShellUser::unplugAll},
        {0.7, &ShellUser::renumber},
        {2, &ShellUser::rearrange},
        {1.5, &ShellUser::rename},
        {1.5, &ShellUser::readInPassing},
        {2.5, &ShellUser::changeMain},
        {0.5, &ShellUser::failUUIDStrings},
        {2.5, &ShellUser::storeSwitch},
        {4, &ShellUser::storeChoice},
        {2.5, &ShellUser::storeOnboarding},
        {6, &ShellUser::changePermission},
        {1, &ShellUser::refuseTaps},
        {1.5, &ShellUser::disableTaps},
        {10, &ShellUser::wait},
    };
    return all;
}

const std::vector<ShellUser::Choice>& ShellUser::choicesDuringAnAlert() {
    static const std::vector<Choice> all{
        {5, &ShellUser::pressButton},
        {3, &ShellUser::pressReturn},
        {6, &ShellUser::leaveAlert},
        {0.2, &ShellUser::terminate},
        {0.2, &ShellUser::kill},
        {2, &ShellUser::activate},
        {2, &ShellUser::clickWindow},
        {1, &ShellUser::closeMenu},
        {1, &ShellUser::closePane},
        {0.5, &ShellUser::refuseActivation},
        {1, &ShellUser::changeLoginItem},
        {2, &ShellUser::checkAsScheduled},
        {1, &ShellUser::plug},
        {1, &ShellUser::unplug},
        {1, &ShellUser::storeOnboarding},
        {3, &ShellUser::changePermission},
        {3, &ShellUser::wait},
    };
    return all;
}

std::string ShellUser::act() {
    if (!session_->model().process() && random_.chance(0.4)) {
        return launch();
    }
    const bool isAlertShown = session_->model().isAlertShown();
    return (this->*random_.weighted(isAlertShown ? choicesDuringAnAlert() : choices()).action)();
}

std::vector<std::string> ShellUser::takeTrace() {
    return tracing_ ? session_->description() : std::vector<std::string>();
}

std::string ShellUser::launch() {
    session_->launch();
    return "the application is launched unless it runs";
}

std::string ShellUser::terminate() {
    session_->terminate();
    return "the application is told to terminate";
}

std::string ShellUser::kill() {
    session_->kill();
    return "the process is killed";
}

std::string ShellUser::letGoOfDelegate() {
    const bool controllerStays = random_.chance(0.5);
    session_->letGoOfDelegate(controllerStays);
    return controllerStays ? "the delegate goes, the menu bar controller stays" : "the delegate goes";
}

std::string ShellUser::reopen() {
    session_->reopen();
    return "the application is opened again";
}

std::string ShellUser::activate() {
    const bool isActive = random_.chance(0.7);
    session_->setActive(isActive);
    return std::string("the application is ") + (isActive ? "active" : "inactive");
}

StoredSwitch ShellUser::enabled() { return randomSwitch(random_, 0.5); }

std::string ShellUser::storeSwitch() {
    const StoredSwitch value = enabled();
    session_->store(value);
    return "the switch is stored from outside: " + textOf(value.stored ? &*value.stored : nullptr);
}

StoredChoice ShellUser::choice(const std::vector<sim::Display>& displays) {
    if (displays.empty() || random_.chance(0.5)) {
        return random_.chance(0.5) ? absentChoice() : random_.pick(remarkableChoices());
    }
    const sim::Display& display = random_.pick(displays);
    return choiceOf(display.uuid.value_or("display-" + std::to_string(display.displayID)));
}

std::string ShellUser::storeChoice() {
    const StoredChoice value = choice(session_->model().connected());
    session_->store(value);
    return "the choice is stored from outside: " + textOf(value.stored ? &*value.stored : nullptr);
}

// An entry that is not there reads as false here, unlike the switch.
StoredFlag ShellUser::onboarding() {
    StoredFlag value = enabled();
    value.reading = value.stored && value.reading;
    return value;
}

std::string ShellUser::storeOnboarding() {
    const StoredFlag value = onboarding();
    session_->storeOnboarding(value);
    return "the end of the wizard is stored from outside: " + textOf(value.stored ? &*value.stored : nullptr);
}

sim::Permission ShellUser::permission() {
    static constexpr std::array<sim::Permission, 5> Permissions{
        sim::Permission::notListed, sim::Permission::switchedOff, sim::Permission::granted,
        sim::Permission::rowDeleted, sim::Permission::stale};
    return random_.chance(0.5) ? sim::Permission::granted : random_.pick(Permissions);
}

std::string ShellUser::changePermission() {
    static constexpr std::array<const char*, 5> Names{"not listed", "switched off", "granted", "row deleted",
                                                      "stale"};
    const sim::Permission value = permission();
    session_->setPermission(value);
    return std::string("the permission is ") + Names[static_cast<std::size_t>(value)];
}

std::string ShellUser::refuseTaps() {
    const bool refuse = random_.chance(0.25);
    session_->refuseTapCreation(refuse);
    return refuse ? "the system refuses taps" : "the system allows taps";
}

std::string ShellUser::disableTaps() {
    const EventType reason =
        random_.chance(0.5) ? EventType::tapDisabledByTimeout : EventType::tapDisabledByUserInput;
    session_->disableTaps(reason);
    return "the system switches the taps off";
}

std::string ShellUser::wait() {
    const double draw = random_.unit();
    milliseconds duration(0);
    if (draw > 0.9) {
        duration = milliseconds(random_.whole(3000, 20000));
    } else if (draw > 0.3) {
        duration = milliseconds(random_.chance(0.3) ? 1000 : random_.whole(1, 2500));
    }
    session_->advance(duration);
    return std::to_string(duration.count()) + " ms pass";
}

} // namespace kestrune::simulate
