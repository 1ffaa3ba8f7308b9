// GNUstep has no menu bar. Its windows, buttons, menus and the tracking of menus are its own; the bar around
// them is here.
//
// This is what we believe the Mac does, and no proof of it: the press opens the menu, whose delegate is told
// before; the menu hangs below the bar, moved to the left as far as the screen's edge demands, and stays what
// it is while it is open, whatever menu the status item gets meanwhile.
#include "tests/gnustep/process/MenuBar.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/MainActor.h"
#include "platform/Menu.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/process/Session.h"
#include "tests/gnustep/process/Teller.h"
#include "tests/gnustep/standins/appkit/StatusItems.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <algorithm>
#include <string>

namespace kestrune::gnustep {

namespace {

constexpr double BarHeight = 24; // points, which are pixels here
constexpr double ButtonWidth = 32;

// GNUstep's separators have dashes for a title, which nobody sees.
std::string describe(id item) {
    if (send<BOOL>(item, "isSeparatorItem") != 0) {
        return "\tseparator";
    }
    const bool isMarked = send<mac::Integer>(item, "state") == static_cast<mac::Integer>(ControlState::on);
    const bool isEnabled = send<BOOL>(item, "isEnabled") != 0;
    return mac::textOf(send(item, "title")) + (isMarked ? "\tmarked" : "") + (isEnabled ? "" : "\tdisabled");
}

void tellRows(id menu) {
    const id view = send(menu, "menuRepresentation");
    const auto count = send<mac::Integer>(menu, "numberOfItems");
    for (mac::Integer index = 0; index < count; ++index) {
        tell("row\t" + placeOf(view, send<Rect>(view, "rectOfItemAtIndex:", index)) + "\t" +
             describe(send(menu, "itemAtIndex:", index)));
    }
    tell("open");
}

// GNUstep opens it at the pointer.
void hangBelowTheBar(id menu, id button) {
    const id window = send(menu, "window");
    const Size screen = screenSize();
    const double width = send<Rect>(window, "frame").size.width;
    const double left = send<Rect>(button, "frame").origin.x;
    send<void>(window, "setFrameTopLeftPoint:",
               Point{std::min(left, screen.width - width), screen.height - BarHeight});
}

// Other processes are to see now what was stored; otherwise GNUstep writes every half minute.
void writeDefaults() { send<BOOL>(mac::foundation.userDefaults.standardUserDefaults(), "synchronize"); }

using MouseDown = Method<void, id>;

MouseDown mouseDownOfGNUstep = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

// Comes back when the menu is closed again and what was chosen is done. GNUstep's own would wait for the
// release, which ends in the menu.
void mouseDown(id button, SEL selector, id event) {
    if (button != buttonOfStatusItem(0)) {
        mouseDownOfGNUstep(button, selector, event);
        return;
    }
    const mac::Pool pool;
    const mac::Retained menu = mac::Retained::retaining(menuOfStatusItem(0));
    send<void>(send(menu.get(), "delegate"), "menuWillOpen:", menu.get());
    // The main queue is served while the menu is tracked, and not before.
    MainActor::startTask([menu, button] {
        hangBelowTheBar(menu.get(), button);
        tellRows(menu.get());
    });
    send<void>(classObject("NSMenu"), "popUpContextMenu:withEvent:forView:", menu.get(), event, button);
    writeDefaults();
    tell("guarded\t" + guardedDisplays());
}

using SetHighlightedItemIndex = Method<void, mac::Integer>;

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
SetHighlightedItemIndex setHighlightedItemIndexOfGNUstep = nullptr;

void setHighlightedItemIndex(id view, SEL selector, mac::Integer index) {
    const bool isNew = send<mac::Integer>(view, "highlightedItemIndex") != index;
    setHighlightedItemIndexOfGNUstep(view, selector, index);
    if (isNew && index >= 0) {
        const mac::Pool pool;
        tell("highlighted\t" + mac::textOf(send(send(send(view, "menu"), "itemAtIndex:", index), "title")));
    }
}

id makeWindow(const Rect& frame) {
    constexpr mac::Unsigned Borderless = 0;
    constexpr mac::Unsigned Buffered = 2;
    constexpr mac::Integer MainMenuLevel = 24;
    const id window =
        send(send(classObject("NSWindow"), "alloc"), "initWithContentRect:styleMask:backing:defer:", frame,
             Borderless, Buffered, mac::truth(false));
    send<void>(window, "setLevel:", MainMenuLevel);
    return window;
}

} // namespace

void showMenuBar() {
    const mac::Pool pool;
    const Size screen = screenSize();
    static const id window = makeWindow({0, screen.height - BarHeight, screen.width, BarHeight});
    const id button = buttonOfStatusItem(0);
    send<void>(button, "setFrame:", Rect{screen.width - ButtonWidth, 0, ButtonWidth, BarHeight});
    send<void>(button, "setBordered:", mac::truth(false));
    mouseDownOfGNUstep = replaceMethod(classNamed("NSButton"), "mouseDown:", mouseDown);
    setHighlightedItemIndexOfGNUstep =
        replaceMethod(classNamed("NSMenuView"), "setHighlightedItemIndex:", setHighlightedItemIndex);
    send<void>(send(window, "contentView"), "addSubview:", button);
    send<void>(window, "orderFrontRegardless");
    tell("button\t" + placeOf(button, send<Rect>(button, "bounds")));
}

} // namespace kestrune::gnustep
