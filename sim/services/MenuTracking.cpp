#include "sim/services/MenuTracking.h"

#include "sim/formats/BundleContents.h"
#include "sim/services/ApplicationState.h"
#include "sim/services/Journal.h"
#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "sim/services/StatusItems.h"
#include "sim/services/Timers.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

namespace {

const ActionMethod* methodFor(const Object& receiver, const Selector& selector) {
    const auto methods = receiver.actionMethods();
    const auto method = std::find_if(methods.begin(), methods.end(), [&](const ActionMethod& candidate) {
        return candidate.selector == selector;
    });
    return method != methods.end() ? &*method : nullptr;
}

constexpr Selector Terminate{"terminate:"};

// Who gets an item's action: its target, or without one the first of the responder chain with a method for
// it. Behind the windows, of which there are none, the chain has the application and its delegate.
struct Receiver {
    std::shared_ptr<Object> object;
    const ActionMethod* method = nullptr;
    bool isApplication = false;

    explicit operator bool() const { return method != nullptr || isApplication; }
};

Receiver receiverOf(const MenuItem& item, const ApplicationState& application) {
    const MenuItem::State& state = *item.state();
    if (!state.action) {
        return {};
    }
    std::shared_ptr<Object> target = state.target.lock();
    if (!target && *state.action == Terminate) {
        return {nullptr, nullptr, true};
    }
    if (!target) {
        target = application.delegate.lock();
    }
    return target ? Receiver{target, methodFor(*target, *state.action), false} : Receiver{};
}

MenuRow rowOf(const MenuItem& item, bool isEnabled) {
    const MenuItem::State& state = *item.state();
    return {state.title,       state.control,       isEnabled && !state.isSeparator,
            state.isSeparator, state.keyEquivalent, state.modifiers};
}

} // namespace

std::optional<Menu> MenuTracking::menuAt(const MenuPlace& place) const {
    if (const auto* index = std::get_if<StatusItemIndex>(&place)) {
        const auto items = statusItems_.shown();
        return index->value < items.size() ? items[index->value]->menu : std::nullopt;
    }
    const auto& mainMenu = application_.mainMenu;
    const std::size_t index = std::get<MainMenuIndex>(place).value;
    if (mainMenuTitles().size() <= index) {
        return std::nullopt;
    }
    return mainMenu->state()->items[index].state()->submenu;
}

bool MenuTracking::open(const MenuPlace& place) {
    close();
    std::optional<Menu> menu = menuAt(place);
    if (!menu) {
        return false;
    }
    menu_ = menu;
    place_ = place;
    timers_.leaveDefaultMode();
    if (const auto delegate = menu->state()->delegate.lock()) {
        journal_.record("-[", delegate->className(), " menuWillOpen:]");
        delegate->menuWillOpen(*menu);
    }
    // The delegate may have ended the application_.
    return menu_.has_value();
}

bool MenuTracking::isEnabled(const Menu& menu, const MenuItem& item) const {
    if (!menu.state()->autoenablesItems) {
        return item.state()->isEnabled;
    }
    return item.state()->submenu || receiverOf(item, application_);
}

std::vector<MenuRow> MenuTracking::rows() const {
    std::vector<MenuRow> rows;
    if (menu_) {
        for (const MenuItem& item : menu_->state()->items) {
            rows.push_back(rowOf(item, isEnabled(*menu_, item)));
        }
    }
    return rows;
}

bool MenuTracking::choose(std::size_t row) {
    if (!menu_ || row >= menu_->state()->items.size()) {
        return false;
    }
    const MenuItem item = menu_->state()->items[row];
    if (item.state()->isSeparator || !isEnabled(*menu_, item)) {
        return false;
    }
    return endWith(item);
}

// The action is sent at the end of tracking, if a menu was open, before the run loop is back in its default
// mode.
bool MenuTracking::endWith(const MenuItem& chosen) {
    const bool wasOpen = std::exchange(menu_, std::nullopt).has_value();
    place_.reset();
    const bool isSent = sendAction(chosen);
    if (wasOpen) {
        timers_.enterDefaultMode();
    }
    return isSent;
}

bool MenuTracking::sendAction(const MenuItem& item) {
    const Receiver receiver = receiverOf(item, application_);
    if (receiver.isApplication) {
        Application::sharedApplication().terminate();
        return true;
    }
    if (receiver.method == nullptr) {
        return false;
    }
    journal_.record("-[", receiver.object->className(), " ", receiver.method->selector.name(), "]");
    const bool takesSender = receiver.method->selector.name().ends_with(':');
    receiver.method->perform(*receiver.object,
                             takesSender ? item : MenuItem(std::make_shared<MenuItem::State>()));
    return true;
}

void MenuTracking::close() {
    if (menu_) {
        menu_.reset();
        place_.reset();
        timers_.enterDefaultMode();
    }
}

std::vector<std::string> MenuTracking::mainMenuTitles() const {
    std::vector<std::string> titles;
    if (!application_.mainMenu || !application_.isActive ||
        application_.policy != ActivationPolicy::regular) {
        return titles;
    }
    for (const MenuItem& item : application_.mainMenu->state()->items) {
        const auto& submenu = item.state()->submenu;
        titles.push_back(submenu ? submenu->state()->title : item.state()->title);
    }
    if (!titles.empty()) {
        titles.front() = bundle_.infoString("CFBundleName").value_or("Kestrune");
    }
    return titles;
}

std::optional<MenuItem> MenuTracking::itemFor(const Menu& menu, std::string_view keyEquivalent,
                                              EventModifierFlags modifiers) const {
    for (const MenuItem& item : menu.state()->items) {
        if (item.state()->submenu) {
            if (auto found = itemFor(*item.state()->submenu, keyEquivalent, modifiers)) {
                return found;
            }
        }
        if (item.state()->keyEquivalent == keyEquivalent && item.state()->modifiers == modifiers &&
            isEnabled(menu, item)) {
            return item;
        }
    }
    return std::nullopt;
}

bool MenuTracking::press(std::string_view keyEquivalent, EventModifierFlags modifiers) {
    if (keyEquivalent.empty()) {
        return false;
    }
    const std::optional<Menu> menu =
        menu_ ? menu_ : (application_.isActive ? application_.mainMenu : std::nullopt);
    const auto item = menu ? itemFor(*menu, keyEquivalent, modifiers) : std::nullopt;
    return item && endWith(*item);
}

} // namespace kestrune::sim
