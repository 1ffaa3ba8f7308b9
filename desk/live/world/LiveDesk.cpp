#include "desk/live/world/LiveDesk.h"

#include "desk/live/world/PinnedDisplay.h"
#include "sim/formats/DefaultsFile.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <cmath>
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
    const bool wasRunning = host_.guardIsRunning();
    const bool wasShowingUpdate = session_.updates().isShowingUpdate();
    const bool wasShowingAlert = session_.updates().isShowingAlert();
    session_.advance(duration);
    if (!wasShowingUpdate && session_.updates().isShowingUpdate()) {
        news_ = newsOfFoundUpdate();
    } else if (!wasShowingAlert && session_.updates().isShowingAlert()) {
        news_ = newsOfUpdateAlert(feed_);
    }
    if (!wasRunning && host_.guardIsRunning()) {
        news_ = newsOfGuard(standing());
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
    if (dockBefore && session_.dock().display() != dockBefore) {
        noteDockMove(*dockBefore);
    }
}

void LiveDesk::noteDelivery(const sim::Delivery& delivery, bool answered) {
    if (!answered) {
        news_ = newsOfUnansweredEvent(session_.taps().enabledCount() > 0);
    } else if (delivery.delivered != delivery.sent) {
        heldPointer_ = HeldPointer{delivery.delivered, now()};
        const sim::Display* display = session_.displays().containing(delivery.delivered);
        news_ = newsOfHeldPointer(
            delivery, nameOf(display != nullptr ? std::optional(display->displayID) : std::nullopt));
    }
}

void LiveDesk::noteDockMove(DisplayID from) {
    const DisplayID to = *session_.dock().display();
    dockMove_ = DockMove{from, to, now()};
    news_ = newsOfDockMove(nameOf(to));
}

void LiveDesk::pin(DisplayID number) {
    const sim::Display* display = session_.displays().withID(number);
    if (display == nullptr) {
        news_ = {"There is no display " + std::to_string(number), Occurrence::neutral};
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
        host_.quit();
        news_ = newsOfQuit();
    } else {
        host_.launch();
        news_ = newsOfLaunch(standing());
    }
}

void LiveDesk::askForPermission() {
    if (!host_.askForPermission()) {
        news_ = newsOfClosedMenu(standing());
    } else if (session_.accessibility().isDialogShown()) {
        news_ = {"Kestrune asks for the Accessibility permission", Occurrence::neutral};
    } else {
        news_ = {"The system does not ask: Kestrune counts as trusted already", Occurrence::neutral};
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
    Standing result;
    result.applicationRuns = host_.isRunning();
    result.guardRuns = host_.guardIsRunning();
    result.isWatching = host_.isWatchingAccessibility();
    result.isEnabled = choices().isEnabled();
    result.permission = session_.accessibility().permission();
    const sim::Display* pinned = pinnedDisplay(session_);
    if (pinned != nullptr) {
        result.pinned = pinned->localizedName;
        result.pinnedHasDock = session_.dock().display() == pinned->displayID;
    }
    result.choice = choices().pinnedScreenUUID();
    result.loginItem = session_.loginItem().status();
    result.mails = parts_.mailAfterLinks().count();
    for (const auto& window : session_.windows().shown()) {
        result.windows.push_back(window->title);
    }
    for (const auto& window : session_.windows().miniaturized()) {
        result.miniaturized.push_back(window->title);
    }
    return result;
}

void LiveDesk::openLoginItems() {
    parts_.openLoginItems();
    news_ = {"System Settings shows the login items", Occurrence::neutral};
}

void LiveDesk::changeLoginApproval() {
    doLoginItemsWait_ = !doLoginItemsWait_;
    session_.user().requireLoginItemApproval(doLoginItemsWait_);
    news_ = newsOfLoginApproval(doLoginItemsWait_);
}

void LiveDesk::changeUpdateFeed() {
    switch (feed_) {
    case sim::UpdateFeed::nothingNew:
        feed_ = sim::UpdateFeed::newVersion;
        break;
    case sim::UpdateFeed::newVersion:
        feed_ = sim::UpdateFeed::unreachable;
        break;
    case sim::UpdateFeed::unreachable:
        feed_ = sim::UpdateFeed::nothingNew;
        break;
    }
    session_.updateSupply().feed = feed_;
    news_ = newsOfFeed(feed_);
}

void LiveDesk::letScheduledCheckCome() {
    session_.checkForUpdatesAsScheduled();
    news_ = newsOfScheduledCheck(feed_, host_.isRunning());
}

void LiveDesk::unplugUnderPointer() {
    auto change = plugs_.unplug(session_.pointer());
    if (!change) {
        news_ = {"No display is under the pointer", Occurrence::neutral};
        return;
    }
    const Whereabouts before = whereabouts();
    changeDisplays(std::move(change->arrangement));
    news_ = newsOfUnplugging(change->name, before, whereabouts());
}

void LiveDesk::plugIn() {
    auto change = plugs_.plugIn();
    if (!change) {
        news_ = {"There is no other display to plug in", Occurrence::neutral};
        return;
    }
    changeDisplays(std::move(change->arrangement));
    news_ = newsOfPlugging(change->name, whereabouts().primary == change->name);
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
        news_ = {"There is no tap to switch off", Occurrence::neutral};
        return;
    }
    session_.faults().disableTaps(EventType::tapDisabledByTimeout);
    news_ = newsOfTapTimeout(session_.taps().enabledCount() > 0);
}

void LiveDesk::deepenBand() { setMargin(std::exp2(std::floor(std::log2(choices().blockMargin())) + 1)); }

void LiveDesk::narrowBand() { setMargin(std::exp2(std::ceil(std::log2(choices().blockMargin())) - 1)); }

void LiveDesk::setMargin(double wanted) {
    const double margin = std::clamp(wanted, NarrowestMargin, DeepestMargin);
    choices().setBlockMargin(margin);
    news_ = newsOfMargin(margin);
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

Whereabouts LiveDesk::whereabouts() {
    Whereabouts result;
    if (!session_.displays().connected().empty()) {
        result.primary = session_.displays().connected().front().localizedName;
    }
    if (const sim::Display* pinned = pinnedDisplay(session_)) {
        result.pinned = pinned->localizedName;
    }
    result.isPinStored = choices().pinnedScreenUUID().has_value();
    if (const auto dock = session_.dock().display()) {
        result.dock = nameOf(dock);
    }
    return result;
}

std::string LiveDesk::nameOf(std::optional<DisplayID> number) {
    const sim::Display* display = number ? session_.displays().withID(*number) : nullptr;
    return display != nullptr ? display->localizedName : "no display";
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
