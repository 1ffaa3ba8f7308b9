#include "platform/Menu.h"

#include "mac/Handles.h"
#include "mac/ObjectCounterpart.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

namespace {

SEL selectorOf(const std::optional<Selector>& action) {
    return action ? sel_registerName(std::string(action->name()).c_str()) : nullptr;
}

mac::Retained numberOf(std::int64_t number) {
    return mac::Retained::retaining(mac::foundation.number.numberWithLongLong(number));
}

struct PlatformObject {
    mac::Retained operator()(const std::string& text) const { return mac::nsString(text); }
    mac::Retained operator()(std::int64_t number) const { return numberOf(number); }
};

std::shared_ptr<MenuItem::State> stateOf(mac::Retained item) {
    return std::make_shared<MenuItem::State>(MenuItem::State{std::move(item)});
}

std::shared_ptr<Menu::State> stateOfMenu(id menu) {
    return std::make_shared<Menu::State>(Menu::State{mac::Retained::adopting(menu)});
}

} // namespace

MenuItem::MenuItem(std::shared_ptr<State> state) : state_(std::move(state)) {}

MenuItem::MenuItem()
    : state_(stateOf(
          mac::Retained::adopting(mac::foundation.object.init(mac::allocate(mac::appKit.menuItem))))) {}

MenuItem::MenuItem(std::string_view title, std::optional<Selector> action, std::string_view keyEquivalent) {
    const mac::Pool pool;
    state_ = stateOf(mac::Retained::adopting(
        mac::appKit.menuItem.initWithTitle(mac::allocate(mac::appKit.menuItem), mac::nsString(title).get(),
                                           selectorOf(action), mac::nsString(keyEquivalent).get())));
}

MenuItem MenuItem::separatorItem() {
    const mac::Pool pool;
    return MenuItem(stateOf(mac::Retained::retaining(mac::appKit.menuItem.separatorItem())));
}

void MenuItem::setTarget(const std::weak_ptr<Object>& target) {
    mac::appKit.menuItem.setTarget(state_->item.get(), Object::Counterpart::of(target));
}

void MenuItem::setSubmenu(const Menu& submenu) {
    mac::appKit.menuItem.setSubmenu(state_->item.get(), submenu.state()->menu.get());
}

void MenuItem::setKeyEquivalentModifierMask(EventModifierFlags mask) {
    mac::appKit.menuItem.setKeyEquivalentModifierMask(state_->item.get(), static_cast<mac::Unsigned>(mask));
}

void MenuItem::setRepresentedObject(const RepresentedObject& object) {
    const mac::Pool pool;
    mac::appKit.menuItem.setRepresentedObject(state_->item.get(), std::visit(PlatformObject(), object).get());
}

std::optional<RepresentedObject> MenuItem::representedObject() const {
    const mac::Pool pool;
    const id object = mac::appKit.menuItem.representedObject(state_->item.get());
    if (auto text = mac::textIfString(object)) {
        return *std::move(text);
    }
    const bool isNumber = mac::foundation.object.isKindOfClass(object, mac::foundation.number.find()) != 0;
    return isNumber
               ? std::optional<RepresentedObject>(std::int64_t{mac::foundation.number.longLongValue(object)})
               : std::nullopt;
}

void MenuItem::setState(ControlState state) {
    mac::appKit.menuItem.setState(state_->item.get(), static_cast<mac::Integer>(state));
}

void MenuItem::setEnabled(bool enabled) {
    mac::appKit.menuItem.setEnabled(state_->item.get(), mac::truth(enabled));
}

Menu::Menu(std::shared_ptr<State> state) : state_(std::move(state)) {}

Menu::Menu() : state_(stateOfMenu(mac::foundation.object.init(mac::allocate(mac::appKit.menu)))) {}

Menu::Menu(std::string_view title)
    : state_(stateOfMenu(
          mac::appKit.menu.initWithTitle(mac::allocate(mac::appKit.menu), mac::nsString(title).get()))) {}

void Menu::setAutoenablesItems(bool autoenables) {
    mac::appKit.menu.setAutoenablesItems(state_->menu.get(), mac::truth(autoenables));
}

void Menu::addItem(const MenuItem& item) {
    mac::appKit.menu.addItem(state_->menu.get(), item.state()->item.get());
}

void Menu::setDelegate(const std::weak_ptr<MenuDelegate>& delegate) {
    mac::appKit.menu.setDelegate(state_->menu.get(), Object::Counterpart::of(delegate));
}

} // namespace kestrune
