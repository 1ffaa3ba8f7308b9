// The scenes of the tour: a user's first launch, and what comes after it.

#include "desk/live/gallery/Gallery.h"

#include <chrono>
#include <utility>
#include <vector>

namespace kestrune::desk {

namespace {

constexpr sim::Duration LongRest = std::chrono::seconds(2);
constexpr sim::Duration UntilTheWatcherLooks = std::chrono::seconds(1);
constexpr sim::Duration UntilTheUpdaterHasChecked = std::chrono::seconds(1);

constexpr EventType Drag = EventType::leftMouseDragged;

template <typename... Steps>
Scene scene(const char* name, Frame frame, const char* caption, Steps... steps) {
    return {name, frame, caption, {steps...}};
}

Step glide(Role display, double fractionX, double fractionY, EventType type = EventType::mouseMoved) {
    return [=](Stage& stage) { stage.glide(display, fractionX, fractionY, type); };
}

Step push(Role display, EventType type = EventType::mouseMoved) {
    return [=](Stage& stage) { stage.push(display, type); };
}

Step pointAt(const Thing& thing) {
    return [thing](Stage& stage) { stage.pointAt(thing); };
}

Step press(const Thing& thing) {
    return [thing](Stage& stage) { stage.press(thing); };
}

Step click(const Thing& thing) {
    return [thing](Stage& stage) { stage.click(thing); };
}

void letGo(Stage& stage) { stage.letGo(); }

Step wait(sim::Duration duration) {
    return [duration](Stage& stage) { stage.desk().advance(duration); };
}

// Something that a key does.
Step act(void (LiveDesk::*action)(), int times = 1) {
    return [=](Stage& stage) {
        for (int time = 0; time < times; ++time) {
            (stage.desk().*action)();
        }
    };
}

Step leaveDisplays(std::size_t count) {
    return [count](Stage& stage) {
        while (stage.desk().session().displays().connected().size() > count) {
            stage.glide(Role::latest, 0.5, 0.5);
            stage.desk().unplugUnderPointer();
        }
    };
}

// Each takes a second.
void sendThreeUnansweredEvents(Stage& stage) {
    for (int event = 0; event < 3; ++event) {
        const Point pointer = stage.desk().session().pointer();
        stage.desk().movePointerTowards({pointer.x + 24, pointer.y});
    }
}

// The story is about the display that was pinned in the beginning and another one.
std::vector<Scene> firstRun() {
    using enum Role;
    using enum Frame;
    return {
        scene("first-launch", display,
              "Kestrune runs for the first time. Its wizard is open; nothing keeps the Dock yet.",
              glide(first, 0.62, 0.55)),
        scene("the-dock-leaves", everything,
              "Pushed against the bottom edge of {other}, the pointer pulls the Dock over.", push(other)),
        scene("menu-before-setup", whatIsOpen,
              "Before its setup the menu lists the displays and lets nobody choose one.",
              click(statusItem(other)), pointAt(menuRow("Complete setup"))),
        scene("permission-asked-for", whatIsOpen,
              "Moving events needs the Accessibility permission. The wizard lets the system ask for it.",
              click(menuRow("Complete setup")), press(titleBar("Welcome to Kestrune")),
              glide(first, 0.18, 0.28, Drag), letGo, click(control("Request permission")),
              press(control("Open System Settings"))),
        scene("permission-granted", whatIsOpen,
              "Switched on in System Settings, and within a second the guard runs by itself.", letGo,
              click(control("Kestrune")), wait(UntilTheWatcherLooks)),
        scene("wizard-finished", whatIsOpen,
              "The wizard has noticed, too: one more click, and the first run is done.",
              click(closeButton("Accessibility")), pointAt(control("Finish"))),
        scene("the-dock-comes-home", everything, "The guard is on. One push brings the Dock home to {first}.",
              click(control("Finish")), push(first)),
    };
}

std::vector<Scene> guarding() {
    using enum Role;
    using enum Frame;
    return {
        scene("held", pointer,
              "The same push as before: the pointer is held above the edge, and the Dock stays.",
              push(other)),
        scene("held-while-dragging", pointer, "Dragging a window down makes no difference.",
              act(&LiveDesk::openLoginItems), press(titleBar("Login Items")), push(other, Drag)),
        scene("tool-tip", whatIsOpen, "The pointer rests on the icon.", glide(other, 0.5, 0.5, Drag), letGo,
              click(closeButton("Login Items")), pointAt(statusItem(other)), wait(LongRest)),
        scene("menu-after-setup", whatIsOpen, "The setup is complete, and the menu is all there.",
              click(statusItem(first)), pointAt(menuRow("{first}"))),
        scene("choosing-a-display", whatIsOpen, "Choose the display that keeps the Dock: {other}.",
              pointAt(menuRow("{other}"))),
        scene("another-choice", everything, "The pin is on {other} now, and there the Dock may go.",
              click(menuRow("{other}")), push(other)),
        scene("switched-off", whatIsOpen,
              "The menu's switch: off, the Dock goes wherever the pointer pushes it.",
              click(statusItem(first)), click(menuRow("Disable")), click(statusItem(first)),
              pointAt(menuRow("Enable"))),
        scene("switched-on", pointer, "On again, and the choice has stayed: {first} is guarded.",
              click(menuRow("Enable")), push(first)),
        scene("one-more-display", pointer, "{latest} is plugged in, and guarded from its first event on.",
              act(&LiveDesk::plugIn), push(latest)),
        scene("deeper-band", pointer, "A deeper band keeps the pointer further from the edge.",
              act(&LiveDesk::deepenBand, 4), push(first)),
        scene("pinned-display-unplugged", everything,
              "{other} is unplugged: the choice falls back to {pinned} and is stored.",
              act(&LiveDesk::narrowBand, 4), glide(other, 0.5, 0.5), act(&LiveDesk::unplugUnderPointer)),
        scene("plugged-in-again", whatIsOpen,
              "{other} is back. The pin stays where it fell; the menu moves it with one click.",
              act(&LiveDesk::plugIn), click(statusItem(first)), pointAt(menuRow("{other}"))),
        scene("permission-revoked", everything,
              "Without the Accessibility permission every event waits a second for the tap.",
              click(statusItem(first)), act(&LiveDesk::togglePermission), sendThreeUnansweredEvents),
        scene("permission-back", pointer, "Granted again, the tap answers and the guard holds as before.",
              act(&LiveDesk::togglePermission), push(latest)),
        scene("tap-timeout", everything,
              "The system gives up on a slow tap, and the guard switches it on again.",
              act(&LiveDesk::timeOutTap)),
    };
}

std::vector<Scene> settingsAndTheEnd() {
    using enum Role;
    using enum Frame;
    return {
        scene("settings", display,
              "While its Settings are open, Kestrune is an application with a menu bar of its own.",
              leaveDisplays(2), click(statusItem(main)), click(menuRow("Settings…")),
              pointAt(control("Launch at login"))),
        scene("launch-at-login", whatIsOpen, "Launched at login from now on, and System Settings knows.",
              click(control("Launch at login")), act(&LiveDesk::openLoginItems),
              pointAt(control("Kestrune"))),
        scene("nothing-new", whatIsOpen, "A check for updates finds nothing new, and says so.",
              click(closeButton("Login Items")), click(control("Check for Updates…")),
              wait(UntilTheUpdaterHasChecked), pointAt(control("OK"))),
        scene("new-version", whatIsOpen,
              "Another check finds a new version; its window floats in front of everything.",
              click(control("OK")), act(&LiveDesk::changeUpdateFeed), click(control("Check for Updates…")),
              wait(UntilTheUpdaterHasChecked), pointAt(control("Remind Me Later"))),
        scene("bug-report", whatIsOpen, "A bug report is a mail that the user sends, or does not.",
              click(control("Remind Me Later")), click(control("Report a Bug…"))),
        scene("one-display-left", everything,
              "With one display left there is nothing to guard, and the pointer goes everywhere.",
              click(closeButton("New Message")), click(closeButton("Kestrune Settings")), leaveDisplays(1),
              push(main)),
        scene("quit", everything,
              "Quit, the icon and the tap are gone; what was chosen is kept for the next launch.",
              act(&LiveDesk::quitOrLaunch)),
        scene("launched-again", whatIsOpen,
              "Launched again, Kestrune needs no setup any more and guards what was chosen.",
              act(&LiveDesk::quitOrLaunch), click(statusItem(main)), pointAt(menuRow("{pinned}"))),
    };
}

} // namespace

Chapter tourChapter() {
    // Nothing is granted and nothing is stored.
    const auto prepare = [](LiveDeskSetup& setup) { setup.permission = sim::Permission::notListed; };
    std::vector<Scene> scenes = firstRun();
    for (const auto& part : {guarding(), settingsAndTheEnd()}) {
        scenes.insert(scenes.end(), part.begin(), part.end());
    }
    return {"tour", "The whole life of Kestrune, scene by scene", 3, 0.5, {{prepare, std::move(scenes)}}};
}

} // namespace kestrune::desk
