// The scenes of the tour: a user's first launch, and what comes after it.

#include "desk/live/gallery/Chapter.h"
#include "desk/live/world/PinnedDisplay.h"

#include <chrono>

namespace kestrune::desk {

namespace {

// Each takes a second.
constexpr int UnansweredEvents = 3;

constexpr int DeepeningSteps = 4;

constexpr sim::Duration LongRest = std::chrono::seconds(2);
constexpr sim::Duration UntilTheWatcherLooks = std::chrono::seconds(1);
constexpr sim::Duration UntilTheUpdaterHasChecked = std::chrono::seconds(1);

// The story is about the display that was pinned in the beginning and another one.
class TourScenes {
public:
    explicit TourScenes(Stage& stage)
        : desk_(stage.desk()), hand_(stage.hand()), first_(stage.first()), other_(stage.other()) {}

    std::string firstLaunch();
    std::string letDockLeave();
    std::string openMenuBeforeSetup();
    std::string askForPermission();
    std::string grantPermission();
    std::string finishWizard();
    std::string bringDockHome();
    std::string hold();
    std::string holdDrag();
    std::string restToSeeTheToolTip();
    std::string openMenuAfterSetup();
    std::string chooseOther();
    std::string pushWhereChosen();
    std::string switchOff();
    std::string switchOn();
    std::string plugIn();
    std::string deepen();
    std::string unplugPinned();
    std::string plugInAgain();
    std::string revoke();
    std::string grantAgain();
    std::string timeOut();
    std::string openSettings();
    std::string launchAtLogin();
    std::string findNothingNew();
    std::string findNewVersion();
    std::string reportBug();
    std::string leaveOneDisplay();
    std::string quit();
    std::string launchAgain();

private:
    // The last ones go.
    void unplugAllBut(std::size_t count);

    const std::string& nameOf(DisplayID number);
    std::string pinnedName();

    LiveDesk& desk_;
    TourHand& hand_;
    DisplayID first_;
    std::optional<DisplayID> other_;
};

template <std::string (TourScenes::*Play)()>
std::string played(Stage& stage) {
    if (!stage.other()) {
        stage.hand().miss("another display than the pinned one, both with a free bottom edge");
        return "";
    }
    return (TourScenes(stage).*Play)();
}

std::string TourScenes::firstLaunch() {
    hand_.glideTo(hand_.onDisplay(first_, 0.62, 0.55));
    return "Kestrune runs for the first time. Its wizard is open; nothing keeps the Dock yet.";
}

std::string TourScenes::letDockLeave() {
    hand_.push(*other_);
    return "Pushed against the bottom edge of " + nameOf(*other_) + ", the pointer pulls the Dock over.";
}

std::string TourScenes::openMenuBeforeSetup() {
    hand_.openMenu(*other_);
    hand_.pointAtRow("Complete setup");
    return "Before its setup the menu lists the displays and lets nobody choose one.";
}

std::string TourScenes::askForPermission() {
    hand_.clickRow("Complete setup");
    hand_.clickControl("Request permission");
    hand_.holdControl("Open System Settings");
    return "Moving events needs the Accessibility permission. The wizard lets the system ask for it.";
}

std::string TourScenes::grantPermission() {
    hand_.letGo();
    hand_.clickControl("Kestrune");
    desk_.advance(UntilTheWatcherLooks);
    return "Switched on in System Settings, and within a second the guard runs by itself.";
}

std::string TourScenes::finishWizard() {
    hand_.closeWindow("Accessibility");
    hand_.pointAtControl("Finish");
    return "The wizard has noticed, too: one more click, and the first run is done.";
}

std::string TourScenes::bringDockHome() {
    hand_.clickControl("Finish");
    hand_.push(first_);
    return "The guard is on. One push brings the Dock home to " + nameOf(first_) + ".";
}

std::string TourScenes::hold() {
    hand_.push(*other_);
    return "The same push as before: the pointer is held above the edge, and the Dock stays.";
}

std::string TourScenes::holdDrag() {
    hand_.push(*other_, EventType::leftMouseDragged);
    return "Dragging a window down makes no difference.";
}

std::string TourScenes::restToSeeTheToolTip() {
    const auto& connected = desk_.session().displays().connected();
    const sim::Display* other = desk_.session().displays().withID(*other_);
    hand_.pointAt(DeskTarget::statusItem(static_cast<std::size_t>(other - connected.data()), 0));
    desk_.advance(LongRest);
    return "The pointer rests on the icon.";
}

std::string TourScenes::openMenuAfterSetup() {
    hand_.openMenu(first_);
    hand_.pointAtRow(nameOf(first_));
    return "The setup is complete, and the menu is all there.";
}

std::string TourScenes::chooseOther() {
    hand_.pointAtRow(nameOf(*other_));
    return "Choose the display that keeps the Dock: " + nameOf(*other_) + ".";
}

std::string TourScenes::pushWhereChosen() {
    hand_.clickRow(nameOf(*other_));
    hand_.push(*other_);
    return "The pin is on " + nameOf(*other_) + " now, and there the Dock may go.";
}

std::string TourScenes::switchOff() {
    hand_.openMenu(first_);
    hand_.clickRow("Disable");
    hand_.openMenu(first_);
    hand_.pointAtRow("Enable");
    return "The menu's switch: off, the Dock goes wherever the pointer pushes it.";
}

std::string TourScenes::switchOn() {
    hand_.clickRow("Enable");
    hand_.push(first_);
    return "On again, and the choice has stayed: " + nameOf(first_) + " is guarded.";
}

std::string TourScenes::plugIn() {
    desk_.plugIn();
    const DisplayID added = desk_.session().displays().connected().back().displayID;
    hand_.push(added);
    return nameOf(added) + " is plugged in, and guarded from its first event on.";
}

std::string TourScenes::deepen() {
    for (int step = 0; step < DeepeningSteps; ++step) {
        desk_.deepenBand();
    }
    hand_.push(first_);
    return "A deeper band keeps the pointer further from the edge.";
}

std::string TourScenes::unplugPinned() {
    for (int step = 0; step < DeepeningSteps; ++step) {
        desk_.narrowBand();
    }
    const std::string unplugged = nameOf(*other_);
    hand_.glideTo(hand_.onDisplay(*other_, 0.5, 0.5));
    desk_.unplugUnderPointer();
    return unplugged + " is unplugged: the choice falls back to " + pinnedName() + " and is stored.";
}

std::string TourScenes::plugInAgain() {
    desk_.plugIn();
    hand_.openMenu(first_);
    hand_.pointAtRow(nameOf(*other_));
    return nameOf(*other_) + " is back. The pin stays where it fell; the menu moves it with one click.";
}

std::string TourScenes::revoke() {
    hand_.openMenu(first_);
    desk_.togglePermission();
    for (int event = 0; event < UnansweredEvents; ++event) {
        const Point pointer = desk_.session().pointer();
        desk_.movePointerTowards({pointer.x + 24, pointer.y});
    }
    return "Without the Accessibility permission every event waits a second for the tap.";
}

std::string TourScenes::grantAgain() {
    desk_.togglePermission();
    hand_.push(desk_.session().displays().connected().back().displayID);
    return "Granted again, the tap answers and the guard holds as before.";
}

std::string TourScenes::timeOut() {
    desk_.timeOutTap();
    return "The system gives up on a slow tap, and the guard switches it on again.";
}

std::string TourScenes::openSettings() {
    unplugAllBut(2);
    hand_.openMenu(desk_.session().displays().connected().front().displayID);
    hand_.clickRow("Settings…");
    hand_.pointAtControl("Launch at login");
    return "While its Settings are open, Kestrune is an application with a menu bar of its own.";
}

std::string TourScenes::launchAtLogin() {
    hand_.clickControl("Launch at login");
    desk_.openLoginItems();
    hand_.pointAtControl("Kestrune");
    return "Launched at login from now on, and System Settings knows.";
}

std::string TourScenes::findNothingNew() {
    hand_.closeWindow("Login Items");
    hand_.clickControl("Check for Updates…");
    desk_.advance(UntilTheUpdaterHasChecked);
    hand_.pointAtControl("OK");
    return "A check for updates finds nothing new, and says so.";
}

std::string TourScenes::findNewVersion() {
    hand_.clickControl("OK");
    desk_.changeUpdateFeed();
    hand_.clickControl("Check for Updates…");
    desk_.advance(UntilTheUpdaterHasChecked);
    hand_.pointAtControl("Remind Me Later");
    return "Another check finds a new version; its window floats in front of everything.";
}

std::string TourScenes::reportBug() {
    hand_.clickControl("Remind Me Later");
    hand_.clickControl("Report a Bug…");
    return "A bug report is a mail that the user sends, or does not.";
}

std::string TourScenes::leaveOneDisplay() {
    hand_.closeWindow("New Message");
    hand_.closeWindow("Kestrune Settings");
    unplugAllBut(1);
    hand_.push(desk_.session().displays().connected().front().displayID);
    return "With one display left there is nothing to guard, and the pointer goes everywhere.";
}

std::string TourScenes::quit() {
    desk_.quitOrLaunch();
    return "Quit, the icon and the tap are gone; what was chosen is kept for the next launch.";
}

std::string TourScenes::launchAgain() {
    desk_.quitOrLaunch();
    hand_.openMenu(desk_.session().displays().connected().front().displayID);
    return "Launched again, Kestrune needs no setup any more and guards what was chosen.";
}

void TourScenes::unplugAllBut(std::size_t count) {
    const auto& connected = desk_.session().displays().connected();
    while (connected.size() > count) {
        hand_.glideTo(hand_.onDisplay(connected.back().displayID, 0.5, 0.5));
        desk_.unplugUnderPointer();
    }
}

const std::string& TourScenes::nameOf(DisplayID number) {
    return desk_.session().displays().withID(number)->localizedName;
}

std::string TourScenes::pinnedName() { return pinnedDisplay(desk_.session())->localizedName; }

} // namespace

Chapter tourChapter() {
    // Nothing is granted and nothing is stored.
    const auto prepare = [](LiveDeskSetup& setup) { setup.permission = sim::Permission::notListed; };
    const std::vector<Scene> scenes = {
        {"first-launch", played<&TourScenes::firstLaunch>, Frame::display},
        {"the-dock-leaves", played<&TourScenes::letDockLeave>},
        {"menu-before-setup", played<&TourScenes::openMenuBeforeSetup>, Frame::whatIsOpen},
        {"permission-asked-for", played<&TourScenes::askForPermission>, Frame::whatIsOpen},
        {"permission-granted", played<&TourScenes::grantPermission>, Frame::whatIsOpen},
        {"wizard-finished", played<&TourScenes::finishWizard>, Frame::whatIsOpen},
        {"the-dock-comes-home", played<&TourScenes::bringDockHome>},
        {"held", played<&TourScenes::hold>, Frame::pointer},
        {"held-while-dragging", played<&TourScenes::holdDrag>, Frame::pointer},
        {"tool-tip", played<&TourScenes::restToSeeTheToolTip>, Frame::whatIsOpen},
        {"menu-after-setup", played<&TourScenes::openMenuAfterSetup>, Frame::whatIsOpen},
        {"choosing-a-display", played<&TourScenes::chooseOther>, Frame::whatIsOpen},
        {"another-choice", played<&TourScenes::pushWhereChosen>},
        {"switched-off", played<&TourScenes::switchOff>, Frame::whatIsOpen},
        {"switched-on", played<&TourScenes::switchOn>},
        {"one-more-display", played<&TourScenes::plugIn>},
        {"deeper-band", played<&TourScenes::deepen>},
        {"pinned-display-unplugged", played<&TourScenes::unplugPinned>},
        {"plugged-in-again", played<&TourScenes::plugInAgain>, Frame::whatIsOpen},
        {"permission-revoked", played<&TourScenes::revoke>},
        {"permission-back", played<&TourScenes::grantAgain>},
        {"tap-timeout", played<&TourScenes::timeOut>},
        {"settings", played<&TourScenes::openSettings>, Frame::display},
        {"launch-at-login", played<&TourScenes::launchAtLogin>, Frame::whatIsOpen},
        {"nothing-new", played<&TourScenes::findNothingNew>, Frame::whatIsOpen},
        {"new-version", played<&TourScenes::findNewVersion>, Frame::whatIsOpen},
        {"bug-report", played<&TourScenes::reportBug>, Frame::whatIsOpen},
        {"one-display-left", played<&TourScenes::leaveOneDisplay>},
        {"quit", played<&TourScenes::quit>},
        {"launched-again", played<&TourScenes::launchAgain>, Frame::whatIsOpen},
    };
    return {"tour", "The whole life of Kestrune, scene by scene", 3, 0.5, {{prepare, scenes}}};
}

} // namespace kestrune::desk
