// Login items and updates, and what the bundle says.
#include "tests/random/application/ShellUser.h"

#include <array>
#include <chrono>

namespace kestrune::simulate {

namespace {

using Value = std::optional<sim::PropertyList>;

// One that is there, mostly; otherwise none, or one of the wrong type.
Value textOrNot(Random& random, const char* text) {
    const double draw = random.unit();
    if (draw < 0.7) {
        return sim::PropertyList{std::string(text)};
    }
    return draw < 0.85 ? Value(sim::PropertyList{std::int64_t{57}}) : std::nullopt;
}

} // namespace

BundleFacts ShellUser::bundle() {
    static constexpr std::array<OperatingSystemVersion, 3> Systems{{{14, 5, 0}, {15, 0, 1}, {13, 10, 12}}};
    static constexpr std::array<const char*, 4> Locales{"en_US", "de_DE", "zh-Hans_CN",
                                                        "sr_Latn_RS@currency=EUR"};
    BundleFacts facts;
    facts.version = textOrNot(random_, random_.chance(0.5) ? "2.1" : "10.0.3 \xCE\xB2 & more");
    facts.build = textOrNot(random_, "57");
    facts.copyright = textOrNot(random_, "Copyright \xC2\xA9 2026 Kestrune");
    facts.feed = textOrNot(random_, "https://kestrune.org/appcast.xml");
    facts.system = random_.pick(Systems);
    facts.locale = random_.pick(Locales);
    return facts;
}

sim::UpdateFramework ShellUser::framework() {
    static constexpr std::array<sim::UpdateFramework, 3> Frameworks{
        sim::UpdateFramework::missing, sim::UpdateFramework::broken, sim::UpdateFramework::working};
    return random_.chance(0.7) ? sim::UpdateFramework::working : random_.pick(Frameworks);
}

std::string ShellUser::changeLoginItem() {
    static constexpr std::array<AppServiceStatus, 4> Statuses{
        AppServiceStatus::notRegistered, AppServiceStatus::enabled, AppServiceStatus::requiresApproval,
        AppServiceStatus::notFound};
    static constexpr std::array<const char*, 2> Refusals{"Operation not permitted", "100 % refused: %s"};
    LoginItemModel item = session_->model().loginItem();
    if (random_.chance(0.6)) {
        item.status = random_.pick(Statuses);
    }
    if (random_.chance(0.3)) {
        item.requiresApproval = random_.chance(0.4);
    }
    if (random_.chance(0.4)) {
        item.refusal =
            random_.chance(0.4) ? std::optional<std::string>(random_.pick(Refusals)) : std::nullopt;
    }
    session_->changeLoginItem(item);
    return "the login item's status is " + std::to_string(static_cast<int>(item.status)) +
           (item.requiresApproval ? ", it needs approval" : "") +
           (item.refusal ? ", changes are refused" : "");
}

std::string ShellUser::changeUpdates() {
    static constexpr std::array<sim::UpdateFeed, 3> Feeds{
        sim::UpdateFeed::newVersion, sim::UpdateFeed::nothingNew, sim::UpdateFeed::unreachable};
    static constexpr std::array<const char*, 6> Classes{
        "NSWindow", "NSWindow", "SPUUpdateWindow", "NSKVONotifying_SPUStatus", "MySparklePanel", "spuWindow"};
    sim::UpdateSupply updates = session_->model().updateSupply();
    updates.feed = random_.chance(0.5) ? sim::UpdateFeed::newVersion : random_.pick(Feeds);
    updates.framework = framework();
    updates.windowClass = random_.pick(Classes);
    updates.windowsHide = random_.chance(0.5);
    session_->changeUpdates(updates);
    return std::string("the feed ") +
           (updates.feed == sim::UpdateFeed::newVersion ? "has" : "does not have") +
           " a new version, the updater's windows are of the class " + updates.windowClass +
           (updates.windowsHide ? " and hide" : "");
}

std::string ShellUser::checkAsScheduled() {
    session_->checkAsScheduled();
    return "the time of a scheduled check has come";
}

std::string ShellUser::checkInSettings() {
    if (!placeOf(WindowKind::settings)) {
        session_->reopen();
    }
    if (const auto place = placeOf(WindowKind::settings)) {
        session_->pressButton(*place, 0);
    }
    const bool leaves = random_.chance(0.2);
    if (leaves) {
        session_->setActive(false);
    }
    return std::string("Settings are asked for unless they are there, and updates") +
           (leaves ? ", and the user goes to another application" : "");
}

// At once, before the application has answered.
std::string ShellUser::leaveAlert() {
    session_->pressButton(windowPlace(), 0);
    session_->setActive(false);
    return "the alert is closed, and the user goes to another application";
}

// Between the steps of a check, and past all of them.
std::string ShellUser::waitForUpdates() {
    static constexpr std::array<int, 5> Durations{0, 100, 200, 300, 600};
    const int duration = random_.pick(Durations);
    session_->advance(std::chrono::milliseconds(duration));
    return std::to_string(duration) + " ms pass";
}

} // namespace kestrune::simulate
