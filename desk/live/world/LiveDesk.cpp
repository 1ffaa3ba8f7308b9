#include "desk/live/world/LiveDesk.h"

#include "desk/live/world/PinnedDisplay.h"
#include "sim/formats/DefaultsFile.h"
#include "sim/formats/PropertyList.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr double NarrowestMargin = 1;
constexpr double DeepestMargin = 256;

} // namespace

LiveDesk::LiveDesk(const LiveDeskSetup& setup) : session_(sessionOptionsOf(setup)) {
    startKeepingDefaults(setup);
    session_.dock().place(pinnedDisplay(session_)->displayID);
    news_ = newsOfLaunch(standing());
}

// The setup's choices, and what the guard made of a stored display that is not connected, are saved at once.
void LiveDesk::startKeepingDefaults(const LiveDeskSetup& setup) {
    if (!setup.defaultsFile) {
        return;
    }
    const auto save = [this, path = *setup.defaultsFile](const sim::PropertyListDictionary& entries) {
        savingError_ = sim::saveDefaultsFile(path, entries);
    };
    if (session_.defaults().entries() != setup.defaults) {
        save(session_.defaults().entries());
    }
    session_.defaults().onChange(save);
}

void LiveDesk::advance(sim::Duration duration) {
    const Standing before = standing();
    session_.advance(duration);
    const Standing after = standing();
    if (!before.guardRuns && after.guardRuns) {
        news_ = newsOfGuard(after);
    } else if (auto news = newsOfUpdates(before, after)) {
        news_ = *std::move(news);
    }
}

void LiveDesk::movePointerTowards(Point target, EventType type) {
    if (session_.displays().connected().empty()) {
        return;
    }
    const sim::Duration sentAt = now();
    const auto dockBefore = session_.dock().display();
    replay::JudgedDesk judged = judgedDesk();
    const sim::Delivery delivery = session_.movePointerTo(target, type);

    // The system passes an event on as it is when the tap does not answer in time.
    const bool answered = now() - sentAt < sim::Session::TapTimeout;
    judged.guardOn = judged.guardOn && answered;
    report_.add(judged, delivery);
    noteDelivery(delivery, answered);
    parts_.followPointer();
    const auto dockAfter = session_.dock().display();
    if (dockBefore && dockAfter != dockBefore) {
        dockMove_ = DockMove{*dockBefore, *dockAfter, now()};
        say("The Dock moved to " + *nameOf(dockAfter), Occurrence::dockMoved);
    }
}

void LiveDesk::noteDelivery(const sim::Delivery& delivery, bool answered) {
    if (!answered) {
        say(std::string("The pointer stood still for a second: the tap did not answer") +
                (session_.taps().enabledCount() > 0 ? ", and the guard switched it on again"
                                                    : " and is off now"),
            Occurrence::warning);
    } else if (delivery.delivered != delivery.sent) {
        heldPointer_ = HeldPointer{delivery.delivered, now()};
        const sim::Display* display = session_.displays().containing(delivery.delivered);
        const bool drags = delivery.type != EventType::mouseMoved;
        say("Held at " + sim::shortestText(delivery.delivered.y) + " on " +
                (display != nullptr ? display->localizedName : "no display") +
                (drags ? " while dragging" : ""),
            Occurrence::held);
    }
}

void LiveDesk::pin(DisplayID number) {
    const sim::Display* display = session_.displays().withID(number);
    if (display == nullptr) {
        say("There is no display " + std::to_string(number));
        return;
    }
    const std::string name = display->localizedName;
    news_ = host_.chooseDisplay(number) ? newsOfPin(name, session_.dock().display() == number)
                                        : newsOfClosedMenu(standing());
}

void LiveDesk::toggleGuard() {
    news_ = host_.flipSwitch() ? newsOfGuard(standing()) : newsOfClosedMenu(standing());
}

void LiveDesk::pressButton(const std::optional<DeskTarget>& target) {
    tell([&] { return parts_.press(target); });
}

void LiveDesk::releaseButton(const std::optional<DeskTarget>& target) {
    tell([&] { return parts_.release(target); });
}

bool LiveDesk::navigate(NavigationKey key) {
    const bool isTaken = parts_.takesKeys();
    if (isTaken) {
        tell([&] { return parts_.press(key); });
    }
    return isTaken;
}

void LiveDesk::pressEquivalent(std::string_view character, bool withShift) {
    tell([&] { return parts_.pressEquivalent(character, withShift); });
}

void LiveDesk::openStatusMenu() {
    if (host_.isRunning()) {
        tell([this] {
            parts_.openStatusMenu(displayUnderPointer());
            return PartsOutcome();
        });
    } else {
        news_ = newsOfClosedMenu(standing());
    }
}

void LiveDesk::quitOrLaunch() {
    if (host_.isRunning()) {
        tell([this] {
            host_.quit();
            return PartsOutcome();
        });
    } else {
        host_.launch();
        news_ = newsOfLaunch(standing());
    }
}

void LiveDesk::askForPermission() {
    if (!host_.askForPermission()) {
        news_ = newsOfClosedMenu(standing());
    } else if (session_.accessibility().isDialogShown()) {
        say("Kestrune asks for the Accessibility permission");
    } else {
        say("The system does not ask: Kestrune counts as trusted already");
    }
}

std::size_t LiveDesk::displayUnderPointer() {
    const auto& connected = session_.displays().connected();
    const sim::Display* display = session_.displays().containing(session_.pointer());
    return display != nullptr ? static_cast<std::size_t>(display - connected.data()) : 0;
}

void LiveDesk::tell(const std::function<PartsOutcome()>& action) {
    const Standing before = standing();
    const PartsOutcome outcome = action();
    host_.noticeEnd();
    const Standing after = standing();
    if (auto news = newsOfChange(before, after)) {
        news_ = *std::move(news);
    } else if (outcome.wasMarked && after.pinned) {
        news_ = newsOfPin(*after.pinned, after.pinnedHasDock);
    } else if (outcome.chosenRow) {
        news_ = newsOfChoiceWithoutEffect(*outcome.chosenRow, after);
    } else if (outcome.pressedControl) {
        news_ = newsOfControl(*outcome.pressedControl);
    }
}

Standing LiveDesk::standing() {
    parts_.neighbours().catchUp();
    Standing result;
    result.applicationRuns = host_.isRunning();
    result.guardRuns = host_.guardIsRunning();
    result.isWatching = host_.isWatchingAccessibility();
    result.isEnabled = choices().isEnabled();
    result.permission = session_.accessibility().permission();
    const auto& connected = session_.displays().connected();
    if (!connected.empty()) {
        result.primary = connected.front().localizedName;
    }
    if (const sim::Display* const pinned = pinnedDisplay(session_)) {
        result.pinned = pinned->localizedName;
        result.pinnedHasDock = session_.dock().display() == pinned->displayID;
    }
    result.dock = nameOf(session_.dock().display());
    result.choice = choices().pinnedScreenUUID();
    result.loginItem = session_.loginItem().status();
    result.feed = feed_;
    result.isShowingUpdate = session_.updates().isShowingUpdate();
    result.isShowingAlert = session_.updates().isShowingAlert();
    result.mails = parts_.neighbours().mail().count();
    for (const auto& window : session_.windows().shown()) {
        result.windows.push_back(window->title);
    }
    for (const auto& window : session_.windows().miniaturized()) {
        result.miniaturized.push_back(window->title);
    }
    return result;
}

void LiveDesk::openLoginItems() {
    parts_.neighbours().openLoginItems();
    say("System Settings shows the login items");
}

void LiveDesk::changeLoginApproval() {
    doLoginItemsWait_ = !doLoginItemsWait_;
    session_.user().requireLoginItemApproval(doLoginItemsWait_);
    say(doLoginItemsWait_ ? "From now on a new login item waits for the user's approval"
                          : "From now on a new login item is allowed at once");
}

void LiveDesk::changeUpdateFeed() {
    static const std::map<sim::UpdateFeed, sim::UpdateFeed> next = {
        {sim::UpdateFeed::nothingNew, sim::UpdateFeed::newVersion},
        {sim::UpdateFeed::newVersion, sim::UpdateFeed::unreachable},
        {sim::UpdateFeed::unreachable, sim::UpdateFeed::nothingNew}};
    feed_ = next.at(feed_);
    session_.updateSupply().feed = feed_;
    news_ = newsOfFeed(feed_);
}

void LiveDesk::letScheduledCheckCome() {
    session_.checkForUpdatesAsScheduled();
    if (!host_.isRunning()) {
        say("Kestrune does not run, and so does not check for updates");
    } else {
        say(std::string("The updater checks the feed by itself") +
            (feed_ == sim::UpdateFeed::newVersion ? "" : " and finds nothing to show"));
    }
}

void LiveDesk::unplugUnderPointer() {
    auto change = plugs_.unplug(session_.pointer());
    if (!change) {
        say("No display is under the pointer");
        return;
    }
    const Standing before = standing();
    changeDisplays(std::move(change->arrangement));
    news_ = newsOfUnplugging(change->name, before, standing());
}

void LiveDesk::plugIn() {
    auto change = plugs_.plugIn();
    if (!change) {
        say("There is no other display to plug in");
        return;
    }
    changeDisplays(std::move(change->arrangement));
    const bool isPrimary = standing().primary == change->name;
    say(change->name + " was plugged in" + (isPrimary ? " as the primary display" : ""));
}

void LiveDesk::changeDisplays(std::vector<sim::Display> displays) {
    lastDockDisplay_ = session_.dock().display().value_or(lastDockDisplay_);
    parts_.displaysChanged();
    session_.changeDisplays(std::move(displays));
    heldPointer_.reset();
    dockMove_.reset();
}

void LiveDesk::togglePermission() {
    const bool grant = session_.accessibility().permission() != sim::Permission::granted;
    tell([&] {
        session_.user().setPermission(grant ? sim::Permission::granted : sim::Permission::switchedOff);
        return PartsOutcome();
    });
}

void LiveDesk::timeOutTap() {
    if (session_.taps().enabledCount() == 0) {
        say("There is no tap to switch off");
        return;
    }
    session_.faults().disableTaps(EventType::tapDisabledByTimeout);
    say(std::string("The system switched the tap off after a timeout") +
            (session_.taps().enabledCount() > 0 ? "; the guard switched it on again at once" : ""),
        Occurrence::warning);
}

void LiveDesk::deepenBand() { setMargin(std::exp2(std::floor(std::log2(choices().blockMargin())) + 1)); }

void LiveDesk::narrowBand() { setMargin(std::exp2(std::ceil(std::log2(choices().blockMargin())) - 1)); }

void LiveDesk::setMargin(double wanted) {
    const double margin = std::clamp(wanted, NarrowestMargin, DeepestMargin);
    choices().setBlockMargin(margin);
    say("The guarded band is " + sim::shortestText(margin) + (margin == 1 ? " point" : " points") + " deep");
}

// Made from what is stored and connected, not from what the guard remembers.
replay::JudgedDesk LiveDesk::judgedDesk() {
    replay::JudgedDesk judged;
    const sim::Display* pinned = pinnedDisplay(session_);
    for (const sim::Display& display : session_.displays().connected()) {
        judged.displays.push_back({display.bounds, &display == pinned});
    }
    judged.guardOn = host_.guardIsRunning() && choices().isEnabled();
    judged.margin = choices().blockMargin();
    return judged;
}

std::optional<std::string> LiveDesk::nameOf(std::optional<DisplayID> number) {
    const sim::Display* display = number ? session_.displays().withID(*number) : nullptr;
    return display != nullptr ? std::optional(display->localizedName) : std::nullopt;
}

News LiveDesk::news() const {
    if (savingError_) {
        return {"The preferences are not saved: " + *savingError_, Occurrence::warning};
    }
    return news_;
}

replay::Report LiveDesk::report() {
    replay::Report report = report_;
    report.dockMoves = session_.dock().moves();
    report.dockDisplay = session_.dock().display().value_or(lastDockDisplay_) - 1;
    return report;
}

std::variant<std::unique_ptr<LiveDesk>, replay::InputError> openDesk(const Options& options) {
    const auto setup = setupOf(options);
    if (const auto* error = std::get_if<replay::InputError>(&setup)) {
        return *error;
    }
    auto desk = std::make_unique<LiveDesk>(std::get<LiveDeskSetup>(setup));
    if (const auto& error = desk->savingError()) {
        return replay::InputError{*error};
    }
    return desk;
}

} // namespace kestrune::desk
