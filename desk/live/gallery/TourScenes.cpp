#include "desk/live/gallery/TourScenes.h"

#include "desk/live/world/PinnedDisplay.h"
#include "desk/paint/toolkit/RectMath.h"

namespace kestrune::desk {

namespace {

// Each takes a second.
constexpr int UnansweredEvents = 3;

constexpr int DeepeningSteps = 4;

constexpr sim::Duration LongRest = std::chrono::seconds(2);
constexpr sim::Duration UntilTheWatcherLooks = std::chrono::seconds(1);
constexpr sim::Duration UntilTheUpdaterHasChecked = std::chrono::seconds(1);

} // namespace

TourScenes::TourScenes(LiveDesk& desk)
    : desk_(desk), hand_(desk), first_(pinnedDisplay(desk.session())->displayID) {
    if (!hand_.bottomEdge(first_)) {
        return;
    }
    for (const sim::Display& display : desk.session().displays().connected()) {
        if (!other_ && display.displayID != first_ && hand_.bottomEdge(display.displayID)) {
            other_ = display.displayID;
        }
    }
}

const std::vector<TourScenes::Scene>& TourScenes::all() {
    static const std::vector<Scene> scenes = {
        {"first-launch", &TourScenes::firstLaunch, Frame::display},
        {"the-dock-leaves", &TourScenes::letDockLeave},
        {"menu-before-setup", &TourScenes::openMenuBeforeSetup, Frame::whatIsOpen},
        {"permission-asked-for", &TourScenes::askForPermission, Frame::whatIsOpen},
        {"permission-granted", &TourScenes::grantPermission, Frame::whatIsOpen},
        {"wizard-finished", &TourScenes::finishWizard, Frame::whatIsOpen},
        {"the-dock-comes-home", &TourScenes::bringDockHome},
        {"held", &TourScenes::hold},
        {"held-while-dragging", &TourScenes::holdDrag, Frame::pointer},
        {"tool-tip", &TourScenes::restToSeeTheToolTip, Frame::whatIsOpen},
        {"menu-after-setup", &TourScenes::openMenuAfterSetup, Frame::whatIsOpen},
        {"choosing-a-display", &TourScenes::chooseOther, Frame::whatIsOpen},
        {"another-choice", &TourScenes::pushWhereChosen},
        {"switched-off", &TourScenes::switchOff, Frame::whatIsOpen},
        {"switched-on", &TourScenes::switchOn},
        {"one-more-display", &TourScenes::plugIn},
        {"deeper-band", &TourScenes::deepen},
        {"pinned-display-unplugged", &TourScenes::unplugPinned},
        {"plugged-in-again", &TourScenes::plugInAgain, Frame::whatIsOpen},
        {"permission-revoked", &TourScenes::revoke},
        {"permission-back", &TourScenes::grantAgain},
        {"tap-timeout", &TourScenes::timeOut},
        {"settings", &TourScenes::openSettings, Frame::display},
        {"launch-at-login", &TourScenes::launchAtLogin, Frame::whatIsOpen},
        {"nothing-new", &TourScenes::findNothingNew, Frame::whatIsOpen},
        {"new-version", &TourScenes::findNewVersion, Frame::whatIsOpen},
        {"bug-report", &TourScenes::reportBug, Frame::whatIsOpen},
        {"one-display-left", &TourScenes::leaveOneDisplay},
        {"quit", &TourScenes::quit},
        {"launched-again", &TourScenes::launchAgain, Frame::whatIsOpen},
    };
    return scenes;
}

std::optional<Rect> TourScenes::framed(const Scene& scene, const DeskPicture& picture) {
    constexpr double Surroundings = 48;
    const Rect pointer{picture.pointer.x, picture.pointer.y, 0, 0};
    switch (scene.frame) {
    case Frame::everything:
        break;
    case Frame::display:
        for (const DisplayPicture& display : picture.displays) {
            if (display.bounds.contains(picture.pointer)) {
                return enlargedBy(display.bounds, Surroundings);
            }
        }
        break;
    case Frame::whatIsOpen: {
        const auto open = DeskHitTest().openParts(picture);
        return enlargedBy(open ? unionOf(*open, pointer) : pointer, Surroundings);
    }
    case Frame::pointer:
        return enlargedBy(pointer, Surroundings);
    }
    return std::nullopt;
}

std::variant<std::string, InputError> TourScenes::perform(const Scene& scene) {
    std::string story = (this->*scene.play)();
    if (const auto& missing = hand_.missing()) {
        return InputError{"--tour: the scene " + inQuotes(scene.name) + " expected " + *missing};
    }
    return story;
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

} // namespace kestrune::desk
