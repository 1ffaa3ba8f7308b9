#include "desk/live/LiveDesk.h"

#include "desk/live/Arrangement.h"
#include "desk/replay/SimulatedDesk.h"
#include "sim/DefaultsFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr double UsualMargin = 4;
constexpr double NarrowestMargin = 1;
constexpr double DeepestMargin = 256;

constexpr sim::Duration PermissionWatchInterval = std::chrono::seconds(1);

// The keys 1 to 9 choose a display.
constexpr std::size_t MostDisplays = 9;
constexpr std::array<Size, 4> NewDisplaySizes = {{{1280, 800}, {2560, 1440}, {1080, 1920}, {1920, 1080}}};

sim::SessionOptions sessionOptions(const LiveDeskSetup& setup) {
    sim::SessionOptions options;
    options.displays = connectDisplays(setup.displays);
    options.recordJournal = false;
    options.defaults = setup.defaults;
    if (setup.guardOn) {
        options.defaults.insert_or_assign("isEnabled", sim::PropertyList{*setup.guardOn});
    }
    if (setup.pinned) {
        options.defaults.insert_or_assign("pinnedScreenUUID",
                                          sim::PropertyList{*options.displays.at(*setup.pinned).uuid});
    }
    if (setup.margin) {
        options.defaults.insert_or_assign("blockMargin", sim::PropertyList{*setup.margin});
    }
    return options;
}

bool areSameDisplays(const std::vector<sim::Display>& some, const std::vector<sim::Display>& others) {
    return std::is_permutation(
        some.begin(), some.end(), others.begin(), others.end(),
        [](const sim::Display& one, const sim::Display& other) { return one.displayID == other.displayID; });
}

} // namespace

LiveDesk::LiveDesk(const LiveDeskSetup& setup) : session_(sessionOptions(setup)) {
    startKeepingDefaults(setup);
    session_.dock().place(host_.guard().pinnedScreen()->displayID);
    host_.startIfAllowed();
    schedulePermissionWatch();
    news_ = host_.preferences().isEnabled() ? newsOfEnabledGuard() : newsOfGuardOff();
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

void LiveDesk::schedulePermissionWatch() {
    session_.clock().schedule(PermissionWatchInterval, [this] {
        if (!host_.guard().isRunning()) {
            host_.startIfAllowed();
            if (host_.guard().isRunning()) {
                news_ = newsOfEnabledGuard();
            }
        }
        schedulePermissionWatch();
    });
}

void LiveDesk::movePointerTowards(Point target, EventType type) {
    if (session_.displays().connected().empty()) {
        return;
    }
    const sim::Duration sentAt = now();
    const auto dockBefore = session_.dock().display();
    JudgedDesk judged = judgedDesk();
    const sim::Delivery delivery = session_.movePointerTo(target, type);

    // The system passes an event on as it is when the tap does not answer in time.
    const bool answered = now() - sentAt < sim::Session::TapTimeout;
    judged.guardOn = judged.guardOn && answered;
    report_.add(judged, delivery);
    noteDelivery(delivery, answered);
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
    host_.pin(*display->uuid);
    news_ = newsOfPin(name, session_.dock().display() == number);
}

void LiveDesk::toggleGuard() {
    const bool enabled = !host_.preferences().isEnabled();
    host_.setEnabled(enabled);
    news_ = enabled ? newsOfEnabledGuard() : newsOfGuardOff();
}

News LiveDesk::newsOfEnabledGuard() {
    const GuardReadiness withoutTap = session_.accessibility().readsAsTrusted()
                                          ? GuardReadiness::startsSoon
                                          : GuardReadiness::waitsForPermission;
    return newsOfGuardOn(host_.guard().isRunning() ? GuardReadiness::running : withoutTap,
                         whereabouts().pinned);
}

void LiveDesk::unplugUnderPointer() {
    const auto& connected = session_.displays().connected();
    const sim::Display* display = session_.displays().containing(session_.pointer());
    if (display == nullptr) {
        news_ = {"No display is under the pointer", Occurrence::neutral};
        return;
    }
    const Whereabouts before = whereabouts();
    const std::string name = display->localizedName;
    unplugged_.push_back({*display, connected});
    changeDisplays(withoutDisplay(connected, static_cast<std::size_t>(display - connected.data())));
    news_ = newsOfUnplugging(name, before, whereabouts());
}

void LiveDesk::plugIn() {
    const auto& connected = session_.displays().connected();
    std::string name;
    if (!unplugged_.empty()) {
        Unplugged latest = std::move(unplugged_.back());
        unplugged_.pop_back();
        name = latest.display.localizedName;
        changeDisplays(arrangementWith(std::move(latest)));
    } else if (connected.size() < MostDisplays) {
        const auto number = static_cast<DisplayID>(connected.size() + 1);
        name = "Display " + std::to_string(number);
        const Size size = NewDisplaySizes[(number - 1) % NewDisplaySizes.size()];
        changeDisplays(
            withDisplayAtRight(connected, sim::makeDisplay(number, name, {0, 0, size.width, size.height})));
    } else {
        news_ = {"There is no other display to plug in", Occurrence::neutral};
        return;
    }
    news_ = newsOfPlugging(name, whereabouts().primary == name);
}

std::vector<sim::Display> LiveDesk::arrangementWith(Unplugged unplugged) {
    std::vector<sim::Display> together = session_.displays().connected();
    together.push_back(unplugged.display);
    if (areSameDisplays(together, unplugged.arrangement)) {
        return std::move(unplugged.arrangement);
    }
    return withDisplayAtRight(session_.displays().connected(), std::move(unplugged.display));
}

void LiveDesk::changeDisplays(std::vector<sim::Display> displays) {
    lastDockDisplay_ = session_.dock().display().value_or(lastDockDisplay_);
    session_.changeDisplays(std::move(displays));
    host_.displaysChanged();
    heldPointer_.reset();
    dockMove_.reset();
}

void LiveDesk::togglePermission() {
    const bool grant = session_.accessibility().permission() != sim::Permission::granted;
    session_.accessibility().setPermission(grant ? sim::Permission::granted : sim::Permission::switchedOff);
    const bool isRunning = host_.guard().isRunning();
    news_ = grant ? newsOfGrantedPermission(isRunning, host_.preferences().isEnabled())
                  : newsOfRevokedPermission(isRunning);
}

void LiveDesk::timeOutTap() {
    if (session_.taps().enabledCount() == 0) {
        news_ = {"There is no tap to switch off", Occurrence::neutral};
        return;
    }
    session_.disableTaps(EventType::tapDisabledByTimeout);
    news_ = newsOfTapTimeout(session_.taps().enabledCount() > 0);
}

void LiveDesk::deepenBand() { setMargin(std::exp2(std::floor(std::log2(margin())) + 1)); }

void LiveDesk::narrowBand() { setMargin(std::exp2(std::ceil(std::log2(margin())) - 1)); }

void LiveDesk::setMargin(double wanted) {
    const double margin = std::clamp(wanted, NarrowestMargin, DeepestMargin);
    session_.defaults().set("blockMargin", sim::PropertyList{margin});
    news_ = newsOfMargin(margin);
}

double LiveDesk::margin() {
    const sim::PropertyList* stored = session_.defaults().find("blockMargin");
    const double margin = stored != nullptr ? stored->asDouble() : 0;
    return margin > 0 ? margin : UsualMargin;
}

// Made from what is stored and connected, not from what the guard remembers.
JudgedDesk LiveDesk::judgedDesk() {
    JudgedDesk judged;
    const sim::PropertyList* stored = session_.defaults().find("pinnedScreenUUID");
    const std::optional<std::string> pinned = stored != nullptr ? stored->asString() : std::nullopt;
    for (const sim::Display& display : session_.displays().connected()) {
        if (pinned && display.uuid == pinned) {
            judged.pinned = judged.displays.size();
        }
        judged.displays.push_back(display.bounds);
    }
    judged.guardOn = host_.guard().isRunning() && host_.preferences().isEnabled();
    judged.margin = margin();
    return judged;
}

Whereabouts LiveDesk::whereabouts() {
    Whereabouts result;
    if (!session_.displays().connected().empty()) {
        result.primary = session_.displays().connected().front().localizedName;
    }
    if (const auto& pinned = host_.guard().pinnedScreen()) {
        result.pinned = pinned->localizedName;
    }
    result.isPinStored = session_.defaults().find("pinnedScreenUUID") != nullptr;
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

Report LiveDesk::report() {
    Report report = report_;
    report.dockMoves = session_.dock().moves();
    report.dockDisplay = session_.dock().display().value_or(lastDockDisplay_) - 1;
    return report;
}

} // namespace kestrune::desk
