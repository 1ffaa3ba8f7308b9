#include "tests/mac/ShownWindows.h"

#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/Window.h"
#include "tests/mac/Accessibility.h"
#include "tests/mac/EventTypes.h"
#include "tests/mac/Objects.h"

#include <algorithm>

// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern "C" id NSApp;
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const id NSDefaultRunLoopMode;

namespace kestrune::native {

namespace {

constexpr double BelowTheTop = 8; // points; in a title bar

// Of a class that this platform may lack.
bool isKindOf(id object, const char* className) {
    const Class type = objc_getClass(className);
    return type != nullptr && mac::foundation.object.isKindOfClass(object, type) != 0;
}

bool hasStyle(id window, WindowStyleMask part) {
    return (send<mac::Unsigned>(window, "styleMask") & static_cast<mac::Unsigned>(part)) != 0;
}

std::vector<id> viewsIn(id window) {
    const id list = send(send(window, "contentView"), "subviews");
    std::vector<id> views;
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(list); ++index) {
        views.push_back(mac::foundation.array.objectAtIndex(list, index));
    }
    return views;
}

contract::AccessibleElement accessibleElement(id view) {
    using Role = contract::AccessibleElement::Role;
    const bool isReadOut = isAccessibilityElement(view);
    if (isKindOf(view, "NSTextField")) {
        return {Role::text, mac::textOf(send(view, "stringValue")), isReadOut};
    }
    if (isKindOf(view, "NSImageView")) {
        return {Role::image, "", isReadOut};
    }
    if (isKindOf(view, "NSSwitch")) {
        return {Role::toggle, accessibilityLabel(view), isReadOut};
    }
    if (isKindOf(view, "NSButton")) {
        return {Role::button, accessibilityLabel(view), isReadOut};
    }
    return {Role::shape, "", isReadOut};
}

id mouseEvent(mac::Unsigned type, id window, Point location) {
    return send(classObject("NSEvent"),
                "mouseEventWithType:location:modifierFlags:timestamp:windowNumber:context:eventNumber:"
                "clickCount:pressure:",
                type, location, mac::Unsigned{0}, 0.0, send<mac::Integer>(window, "windowNumber"), id{},
                mac::Integer{0}, mac::Integer{1}, 1.0F);
}

// Whoever tracks the press finds the release waiting.
void click(id window, Point location) {
    send<void>(NSApp, "postEvent:atStart:", mouseEvent(LeftMouseUp, window, location), mac::truth(true));
    send<void>(NSApp, "sendEvent:", mouseEvent(LeftMouseDown, window, location));
}

} // namespace

std::vector<id> visibleWindows() {
    const id list = send(NSApp, "orderedWindows");
    std::vector<id> windows;
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(list); ++index) {
        const id window = mac::foundation.array.objectAtIndex(list, index);
        // GNUstep has another window in the place of a miniaturized one, which is its tile.
        const bool isOrdinary = !isKindOf(window, "NSPanel") && !isKindOf(window, "NSMiniWindow");
        if (send<BOOL>(window, "isVisible") != 0 && isOrdinary) {
            windows.push_back(window);
        }
    }
    return windows;
}

bool hasWindowOnScreenOrInDock() {
    const id list = send(NSApp, "windows");
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(list); ++index) {
        if (send<BOOL>(mac::foundation.array.objectAtIndex(list, index), "isMiniaturized") != 0) {
            return true;
        }
    }
    return !visibleWindows().empty();
}

contract::ShownWindow describeWindow(id window) {
    constexpr auto CanJoinAllSpaces = static_cast<mac::Unsigned>(WindowCollectionBehavior::canJoinAllSpaces);
    contract::ShownWindow shown;
    shown.title = mac::textOf(send(window, "title"));
    shown.content = send<Rect>(window, "contentRectForFrameRect:", send<Rect>(window, "frame"));
    shown.level = static_cast<WindowLevel>(send<mac::Integer>(window, "level"));
    shown.isKey = send<BOOL>(window, "isKeyWindow") != 0;
    shown.hasCloseButton = hasStyle(window, WindowStyleMask::closable);
    shown.isResizable = hasStyle(window, WindowStyleMask::resizable);
    shown.joinsAllSpaces = (send<mac::Unsigned>(window, "collectionBehavior") & CanJoinAllSpaces) != 0;
    for (const id view : viewsIn(window)) {
        shown.elements.push_back(accessibleElement(view));
        if (isKindOf(view, "NSTextField")) {
            shown.texts.push_back(mac::textOf(send(view, "stringValue")));
        } else if (isKindOf(view, "NSSwitch")) {
            shown.switches.push_back(send<mac::Integer>(view, "state") != 0);
        } else if (isKindOf(view, "NSButton")) {
            shown.buttons.push_back(accessibilityLabel(view));
        }
    }
    return shown;
}

contract::ShownButton describeButton(id button) {
    contract::ShownButton shown;
    shown.scaling = static_cast<ImageScaling>(send<mac::Unsigned>(send(button, "cell"), "imageScaling"));
    shown.toolTip = mac::textOf(send(button, "toolTip"));
    if (const id image = send(button, "image")) {
        shown.image = contract::ShownImage{mac::textOf(send(image, "name")),
                                           send<BOOL>(image, "isTemplate") != 0, send<Size>(image, "size")};
    }
    return shown;
}

std::vector<id> viewsIn(id window, const char* className) {
    std::vector<id> views = viewsIn(window);
    views.erase(std::remove_if(views.begin(), views.end(),
                               [className](id view) { return !isKindOf(view, className); }),
                views.end());
    return views;
}

id buttonNamed(id window, std::string_view title) {
    const std::vector<id> buttons = viewsIn(window, "NSButton");
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [title](id button) { return accessibilityLabel(button) == title; });
    return found != buttons.end() ? *found : nullptr;
}

void clickTitleBar(id window) {
    const Size size = send<Rect>(window, "frame").size;
    click(window, {size.width / 2, size.height - BelowTheTop});
}

void click(id view) {
    const Size size = send<Rect>(view, "bounds").size;
    click(send(view, "window"),
          send<Point>(view, "convertPoint:toView:", Point{size.width / 2, size.height / 2}, id{}));
}

void highlight(id button, bool isPressed) {
    send<void>(send(button, "cell"), "setHighlighted:", mac::truth(isPressed));
}

void pressKeyInWindow(std::string_view character, EventModifierFlags modifiers) {
    const id window = send(NSApp, "keyWindow");
    if (window == nullptr) {
        return;
    }
    const id characters = objectFor(std::string(character));
    const id event = send(classObject("NSEvent"),
                          "keyEventWithType:location:modifierFlags:timestamp:windowNumber:context:characters:"
                          "charactersIgnoringModifiers:isARepeat:keyCode:",
                          KeyDown, Point{}, static_cast<mac::Unsigned>(modifiers), 0.0,
                          send<mac::Integer>(window, "windowNumber"), id{}, characters, characters,
                          mac::truth(false), static_cast<unsigned short>(0));
    send<void>(NSApp, "sendEvent:", event);
}

void forgetEvents() {
    constexpr auto AnyEvent = ~mac::Unsigned{0};
    const id past = send(classObject("NSDate"), "distantPast");
    while (send(NSApp, "nextEventMatchingMask:untilDate:inMode:dequeue:", AnyEvent, past,
                NSDefaultRunLoopMode, mac::truth(true)) != nullptr) {
    }
}

} // namespace kestrune::native
