#include "tests/gnustep/process/WindowWatch.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/process/Teller.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <string>
#include <string_view>

namespace kestrune::gnustep {

namespace {

// GNUstep draws the title bar, around the content and beside it.
std::string placeOfCloseButton(id content) {
    const id views = send(send(content, "superview"), "subviews");
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(views); ++index) {
        const id view = mac::foundation.array.objectAtIndex(views, index);
        const bool isButton = mac::foundation.object.isKindOfClass(view, classNamed("NSButton")) != 0;
        if (isButton && sel_getName(send<SEL>(view, "action")) == std::string_view("performClose:")) {
            return placeOf(view, send<Rect>(view, "bounds"));
        }
    }
    fatal("A window that can be closed has no button for it.");
}

// The bar at the top of the screen is a window as well, without a title.
std::string describeWindows() {
    std::string lines;
    std::size_t count = 0;
    for (const id window : visibleWindows()) {
        const contract::ShownWindow shown = describeWindow(window);
        if (!shown.hasCloseButton) {
            continue;
        }
        ++count;
        const id content = send(window, "contentView");
        lines += "window\t" + placeOf(content, send<Rect>(content, "bounds")) + "\t" + shown.title + "\n";
        lines += "close\t" + placeOfCloseButton(content) + "\n";
        for (const std::string& text : shown.texts) {
            lines += "text\t" + text + "\n";
        }
        for (const std::string& button : shown.buttons) {
            const id view = buttonNamed(window, button);
            lines += "control\t" + placeOf(view, send<Rect>(view, "bounds")) + "\t" + button + "\n";
        }
        for (const id view : viewsIn(window, "NSSwitch")) {
            const bool isOn = send<mac::Integer>(view, "state") != 0;
            lines += "switch\t" + placeOf(view, send<Rect>(view, "bounds")) + (isOn ? "\ton\n" : "\toff\n");
        }
    }
    return lines + "windows\t" + std::to_string(count);
}

using SetHighlighted = Method<void, BOOL>;

SetHighlighted setHighlightedOfGNUstep =
    nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void setHighlighted(id cell, SEL selector, BOOL isHighlighted) {
    setHighlightedOfGNUstep(cell, selector, isHighlighted);
    if (isHighlighted != 0) {
        const mac::Pool pool;
        tell("pressed\t" + mac::textOf(send(cell, "title")));
    }
}

} // namespace

void watchPresses() {
    setHighlightedOfGNUstep = replaceMethod(classNamed("NSCell"), "setHighlighted:", setHighlighted);
}

void watchWindows() {
    static std::string latest = "windows\t0";
    const mac::Pool pool;
    std::string now = describeWindows();
    if (now != latest) {
        latest = std::move(now);
        tell(latest);
    }
}

} // namespace kestrune::gnustep
