// Menus and their items.
//
// Source: AppKit, NSMenu.h, NSMenuItem.h, NSEvent.h, NSCell.h.
#pragma once

#include "base/OptionSet.h"
#include "platform/Object.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kestrune {

class Menu;

// NSControlStateValue.
enum class ControlState : std::intptr_t { off = 0, on = 1, mixed = -1 };

// NSEventModifierFlags.
enum class EventModifierFlags : std::uintptr_t {
    none = 0,
    shift = 0x20000,
    control = 0x40000,
    option = 0x80000,
    command = 0x100000,
};

template <>
inline constexpr bool IsOptionSet<EventModifierFlags> = true;

// What a menu item stands for: an NSString or an NSNumber.
using RepresentedObject = std::variant<std::string, std::int64_t>;

// NSMenuDelegate.
class MenuDelegate : public Object {
public:
    // menuWillOpen:, when `menu` is about to be shown. Another menu that takes its place now is shown the
    // next time.
    virtual void menuWillOpen(const Menu& menu) noexcept = 0;
};

// A retained NSMenuItem. Texts are UTF-8.
class MenuItem {
public:
    // -[NSMenuItem init].
    MenuItem();

    // -[NSMenuItem initWithTitle:action:keyEquivalent:]. The key equivalent is a character or empty; its
    // modifier is Command.
    MenuItem(std::string_view title, std::optional<Selector> action, std::string_view keyEquivalent);

    // +[NSMenuItem separatorItem], a new one each time.
    static MenuItem separatorItem();

    // setTarget:. Held weakly. Without a target the action goes along the responder chain.
    void setTarget(const std::weak_ptr<Object>& target);

    // setSubmenu:. Retained.
    void setSubmenu(const Menu& submenu);

    // setKeyEquivalentModifierMask:.
    void setKeyEquivalentModifierMask(EventModifierFlags mask);

    // setRepresentedObject: and representedObject; absent when none was set.
    void setRepresentedObject(const RepresentedObject& object);
    std::optional<RepresentedObject> representedObject() const;

    // setState:. A mark is shown before the title unless the state is off.
    void setState(ControlState state);

    // setEnabled:. An item is enabled unless this or its menu's automatic enabling says otherwise.
    void setEnabled(bool enabled);

    struct State;
    explicit MenuItem(std::shared_ptr<State> state);
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

// A retained NSMenu. Texts are UTF-8.
class Menu {
public:
    // -[NSMenu init].
    Menu();

    // -[NSMenu initWithTitle:].
    explicit Menu(std::string_view title);

    // setAutoenablesItems:. On unless set: then an item is enabled when its target, or a responder of the
    // chain, has a method for its action, whatever `setEnabled` says.
    void setAutoenablesItems(bool autoenables);

    // addItem:. Retained.
    void addItem(const MenuItem& item);

    // setDelegate:. Held weakly.
    void setDelegate(const std::weak_ptr<MenuDelegate>& delegate);

    struct State;
    explicit Menu(std::shared_ptr<State> state);
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
