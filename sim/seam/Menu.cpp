#include "platform/Menu.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/MenuState.h"

#include <utility>

namespace kestrune {

namespace {

std::string_view classNameOf(const std::shared_ptr<Object>& object) {
    return object ? object->className() : "nil";
}

struct NameOfRepresentedObject {
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
};

} // namespace

MenuItem::MenuItem(std::shared_ptr<State> state) : state_(std::move(state)) {}

MenuItem::MenuItem() : state_(std::make_shared<State>()) { sim::recordCall("-[NSMenuItem init]"); }

MenuItem::MenuItem(std::string_view title, std::optional<Selector> action, std::string_view keyEquivalent)
    : state_(std::make_shared<State>()) {
    sim::recordCall("-[NSMenuItem initWithTitle:action:keyEquivalent:] \"", title, "\", ",
                    action ? action->name() : "nil", ", \"", keyEquivalent, "\"");
    state_->title = title;
    state_->action = action;
    state_->keyEquivalent = keyEquivalent;
}

MenuItem MenuItem::separatorItem() {
    sim::recordCall("+[NSMenuItem separatorItem]");
    auto state = std::make_shared<State>();
    state->isSeparator = true;
    return MenuItem(std::move(state));
}

void MenuItem::setTarget(const std::weak_ptr<Object>& target) {
    sim::recordCall("-[NSMenuItem setTarget:] ", classNameOf(target.lock()));
    state_->target = target;
}

void MenuItem::setSubmenu(const Menu& submenu) {
    sim::recordCall("-[NSMenuItem setSubmenu:] \"", submenu.state()->title, "\"");
    state_->submenu = submenu;
}

void MenuItem::setKeyEquivalentModifierMask(EventModifierFlags mask) {
    sim::recordCall("-[NSMenuItem setKeyEquivalentModifierMask:] ", static_cast<std::uintptr_t>(mask));
    state_->modifiers = mask;
}

void MenuItem::setRepresentedObject(const RepresentedObject& object) {
    sim::recordCall("-[NSMenuItem setRepresentedObject:] ", std::visit(NameOfRepresentedObject(), object));
    state_->representedObject = object;
}

std::optional<RepresentedObject> MenuItem::representedObject() const {
    sim::recordCall("-[NSMenuItem representedObject]");
    return state_->representedObject;
}

void MenuItem::setState(ControlState state) {
    sim::recordCall("-[NSMenuItem setState:] ", static_cast<std::intptr_t>(state));
    state_->control = state;
}

void MenuItem::setEnabled(bool enabled) {
    sim::recordCall("-[NSMenuItem setEnabled:] ", enabled);
    state_->isEnabled = enabled;
}

Menu::Menu(std::shared_ptr<State> state) : state_(std::move(state)) {}

Menu::Menu() : state_(std::make_shared<State>()) { sim::recordCall("-[NSMenu init]"); }

Menu::Menu(std::string_view title) : state_(std::make_shared<State>()) {
    sim::recordCall("-[NSMenu initWithTitle:] \"", title, "\"");
    state_->title = title;
}

void Menu::setAutoenablesItems(bool autoenables) {
    sim::recordCall("-[NSMenu setAutoenablesItems:] ", autoenables);
    state_->autoenablesItems = autoenables;
}

void Menu::addItem(const MenuItem& item) {
    sim::recordCall("-[NSMenu addItem:]");
    state_->items.push_back(item);
}

void Menu::setDelegate(const std::weak_ptr<MenuDelegate>& delegate) {
    sim::recordCall("-[NSMenu setDelegate:] ", classNameOf(delegate.lock()));
    state_->delegate = delegate;
}

} // namespace kestrune
