#include "Kestrune/MainMenu.h"

#include "Kestrune/Localized.h"

#include <string_view>

namespace kestrune {

namespace {

Menu applicationMenu(const std::weak_ptr<Object>& settingsTarget, const Selector& settingsAction) {
    Menu menu;
    MenuItem settings(localized("Settings…"), settingsAction, ",");
    settings.setTarget(settingsTarget);
    menu.addItem(settings);
    menu.addItem(MenuItem::separatorItem());
    menu.addItem(MenuItem(localized("Quit Kestrune"), Selector("terminate:"), "q"));
    return menu;
}

// Plain literals: AppKit itself adds to a menu called Edit and knows it by that name.
Menu editMenu() {
    Menu menu("Edit");
    menu.addItem(MenuItem("Undo", Selector("undo:"), "z"));
    MenuItem redo("Redo", Selector("redo:"), "z");
    redo.setKeyEquivalentModifierMask(EventModifierFlags::shift | EventModifierFlags::command);
    menu.addItem(redo);
    menu.addItem(MenuItem::separatorItem());
    menu.addItem(MenuItem("Cut", Selector("cut:"), "x"));
    menu.addItem(MenuItem("Copy", Selector("copy:"), "c"));
    menu.addItem(MenuItem("Paste", Selector("paste:"), "v"));
    menu.addItem(MenuItem("Select All", Selector("selectAll:"), "a"));
    return menu;
}

MenuItem itemWith(const Menu& submenu) {
    MenuItem item;
    item.setSubmenu(submenu);
    return item;
}

} // namespace

Menu buildMainMenu(const std::weak_ptr<Object>& settingsTarget, const Selector& settingsAction) {
    Menu menu;
    menu.addItem(itemWith(applicationMenu(settingsTarget, settingsAction)));
    menu.addItem(itemWith(editMenu()));
    return menu;
}

} // namespace kestrune
