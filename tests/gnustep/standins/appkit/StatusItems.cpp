// The status bar. GNUstep has none, and no button in an item; the button itself is GNUstep's.
//
// This is what we believe the Mac does, and no proof of it: an item is in the bar as long as somebody
// retains it; it has one button and retains its menu.
#include "tests/gnustep/standins/appkit/StatusItems.h"

#include "mac/objc/Retained.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <utility>
#include <vector>

namespace kestrune::gnustep {

namespace {

// Not retained.
std::vector<id>& shown() {
    static std::vector<id> items;
    return items;
}

struct Item {
    double length;
    mac::Retained button;
    mac::Retained menu;
    id instance = nullptr;

    ~Item() { std::erase(shown(), instance); }
};

using ItemClass = Subclass<Item>;

id button(id item, SEL) { return ItemClass::of(item).button.get(); }

id menu(id item, SEL) { return ItemClass::of(item).menu.get(); }

void setMenu(id item, SEL, id menu) { ItemClass::of(item).menu = mac::Retained::retaining(menu); }

// GNUstep has it in the button's cell alone.
void setImageScaling(id button, SEL, mac::Unsigned scaling) {
    send<void>(send(button, "cell"), "setImageScaling:", scaling);
}

const ItemClass& itemClass() {
    static const ItemClass type =
        ItemClass("KestruneStatusItem", "NSStatusItem").method("menu", menu).method("setMenu:", setMenu);
    return type;
}

id systemStatusBar(id, SEL) {
    static const id bar = send(send(classObject("NSStatusBar"), "alloc"), "init");
    return bar;
}

id statusItemWithLength(id, SEL, double length) {
    const id made = send(send(classObject("NSButton"), "alloc"), "initWithFrame:", Rect(0, 0, 24, 24));
    const id item = itemClass().make(length, mac::Retained::adopting(made), mac::Retained());
    ItemClass::of(item).instance = item;
    shown().push_back(item);
    return send(item, "autorelease");
}

} // namespace

void installStatusItems() {
    const Class bar = classNamed("NSStatusBar");
    replaceMethod(classOf(bar), "systemStatusBar", systemStatusBar);
    replaceMethod(bar, "statusItemWithLength:", statusItemWithLength);
    addMethod(classNamed("NSStatusItem"), "button", button);
    addMethod(classNamed("NSButton"), "setImageScaling:", setImageScaling);
}

std::size_t statusItemCount() { return shown().size(); }

id buttonOfStatusItem(std::size_t index) { return ItemClass::of(shown().at(index)).button.get(); }

id menuOfStatusItem(std::size_t index) {
    return index < shown().size() ? ItemClass::of(shown()[index]).menu.get() : nullptr;
}

} // namespace kestrune::gnustep
