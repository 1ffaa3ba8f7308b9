#include "tests/mac/OpenMenu.h"

#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/mac/Send.h"

extern "C" {
// NOLINTBEGIN(readability-identifier-naming): the names are the platform's
extern const id NSDefaultRunLoopMode;
extern const id NSEventTrackingRunLoopMode;
// NOLINTEND(readability-identifier-naming)
}

namespace kestrune::native {

std::vector<id> itemsOf(id menu) {
    send<void>(menu, "update");
    const id list = send(menu, "itemArray");
    std::vector<id> items;
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(list); ++index) {
        items.push_back(mac::foundation.array.objectAtIndex(list, index));
    }
    return items;
}

contract::ShownRow rowOf(id item) {
    contract::ShownRow row;
    row.isSeparator = send<BOOL>(item, "isSeparatorItem") != 0;
    // GNUstep's separators have dashes for a title, which nobody sees.
    row.title = row.isSeparator ? "" : mac::textOf(send(item, "title"));
    row.state = static_cast<ControlState>(send<mac::Integer>(item, "state"));
    row.isEnabled = !row.isSeparator && send<BOOL>(item, "isEnabled") != 0;
    row.keyEquivalent = mac::textOf(send(item, "keyEquivalent"));
    row.modifiers = static_cast<EventModifierFlags>(send<mac::Unsigned>(item, "keyEquivalentModifierMask"));
    return row;
}

bool OpenMenu::open(id menu, const std::function<void()>& whileOpen) {
    if (menu == nullptr) {
        return false;
    }
    set(menu);
    const id delegate = send(menu, "delegate");
    const SEL willOpen = sel_registerName("menuWillOpen:");
    if (send<BOOL>(delegate, "respondsToSelector:", willOpen) != 0) {
        send<void>(delegate, "menuWillOpen:", menu);
    }
    whileOpen();
    set(nullptr);
    return true;
}

std::vector<contract::ShownRow> OpenMenu::rows() const {
    std::vector<contract::ShownRow> rows;
    for (const id item : itemsOf(menu_.get())) {
        rows.push_back(rowOf(item));
    }
    return rows;
}

void OpenMenu::chooseRow(std::size_t row) {
    const std::vector<id> items = itemsOf(menu_.get());
    if (row < items.size() && rowOf(items[row]).isEnabled) {
        choose(items[row]);
    }
}

void OpenMenu::choose(id item) {
    const mac::Retained menu = mac::Retained::retaining(send(item, "menu"));
    set(nullptr);
    send<void>(menu.get(),
               "performActionForItemAtIndex:", send<mac::Integer>(menu.get(), "indexOfItem:", item));
}

id OpenMenu::runLoopMode() const { return menu_ ? NSEventTrackingRunLoopMode : NSDefaultRunLoopMode; }

// Nil ends it.
void OpenMenu::set(id menu) {
    menu_ = mac::Retained::retaining(menu);
    track_(menu != nullptr);
}

} // namespace kestrune::native
