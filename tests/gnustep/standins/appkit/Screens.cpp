// The connected displays as NSScreen lists them. GNUstep knows those of the X server alone.
//
// This is what we believe the Mac does, and no proof of it: the primary display is first, frames count
// upwards from its bottom left corner, a screen goes on describing a display that is gone, and the
// notification is posted on the main thread once the list has changed.
#include "tests/gnustep/standins/appkit/Screens.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <algorithm>
#include <variant>

namespace kestrune::gnustep {

using contract::ConnectedDisplay;

namespace {

struct ScreenOfDisplay {
    ConnectedDisplay display;
    Rect frame; // AppKit screen coordinates.
};

using ScreenClass = Subclass<ScreenOfDisplay>;

struct Screens {
    std::vector<ConnectedDisplay> displays;
    mac::Retained list;
    std::optional<std::size_t> main;
};

// Never destroyed, as Foundation is not there any more when the process ends.
Screens& screens() {
    static Screens& current = *new Screens;
    return current;
}

Rect frame(id screen, SEL) { return ScreenClass::of(screen).frame; }

id localizedName(id screen, SEL) { return objectFor(ScreenClass::of(screen).display.localizedName); }

id deviceDescription(id screen, SEL) {
    const auto& number = ScreenClass::of(screen).display.screenNumber;
    if (!number) {
        return send(classObject("NSDictionary"), "dictionary");
    }
    return send(classObject("NSDictionary"), "dictionaryWithObject:forKey:",
                std::visit([](const auto& plain) { return objectFor(plain); }, *number),
                objectFor("NSScreenNumber"));
}

const ScreenClass& screenClass() {
    static const ScreenClass type = ScreenClass("KestruneScreen", "NSScreen")
                                        .method("frame", frame)
                                        .method("visibleFrame", frame)
                                        .method("deviceDescription", deviceDescription);
    return type;
}

id listScreens(id, SEL) { return screens().list.get(); }

id mainScreen(id, SEL) {
    const auto& [displays, list, main] = screens();
    return main && *main < displays.size()
               ? mac::foundation.array.objectAtIndex(list.get(), static_cast<mac::Unsigned>(*main))
               : nullptr;
}

Rect frameOf(const ConnectedDisplay& display, const ConnectedDisplay& primary) {
    const Rect& bounds = display.bounds;
    return {bounds.origin.x, primary.bounds.size.height - (bounds.origin.y + bounds.size.height),
            bounds.size.width, bounds.size.height};
}

} // namespace

void installScreens() {
    const Class type = classNamed("NSScreen");
    addMethod(type, "localizedName", localizedName);
    replaceMethod(classOf(type), "screens", listScreens);
    replaceMethod(classOf(type), "mainScreen", mainScreen);
}

void connectDisplays(const std::vector<ConnectedDisplay>& displays) {
    const mac::Pool pool;
    const id list = send(classObject("NSMutableArray"), "array");
    for (const ConnectedDisplay& display : displays) {
        const auto screen =
            mac::Retained::adopting(screenClass().make(display, frameOf(display, displays.front())));
        send<void>(list, "addObject:", screen.get());
    }
    screens() = {displays, mac::Retained::retaining(list), 0};
    send<void>(send(classObject("NSNotificationCenter"), "defaultCenter"), "postNotificationName:object:",
               objectFor("NSApplicationDidChangeScreenParametersNotification"), id{});
}

void setMainScreen(std::optional<std::size_t> index) { screens().main = index; }

std::optional<std::string> uuidOfDisplay(DisplayID displayID) {
    const auto& displays = screens().displays;
    const auto found = std::find_if(displays.begin(), displays.end(), [&](const ConnectedDisplay& display) {
        return display.displayID == displayID;
    });
    return found != displays.end() ? found->uuid : std::nullopt;
}

} // namespace kestrune::gnustep
