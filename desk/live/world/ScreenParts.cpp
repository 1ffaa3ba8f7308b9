#include "desk/live/world/ScreenParts.h"

#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "sim/services/WindowState.h"

#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr sim::Duration ToolTipDelay = std::chrono::milliseconds(1200);

bool canBeHighlighted(const sim::MenuRow& row) { return row.isEnabled && !row.isSeparator; }

std::string keyText(const sim::MenuRow& row) {
    if (row.keyEquivalent.empty()) {
        return {};
    }
    std::string text;
    const auto has = [&](EventModifierFlags flag) {
        return (static_cast<std::uintptr_t>(row.modifiers) & static_cast<std::uintptr_t>(flag)) != 0;
    };
    text += has(EventModifierFlags::control) ? "⌃" : "";
    text += has(EventModifierFlags::option) ? "⌥" : "";
    text += has(EventModifierFlags::shift) ? "⇧" : "";
    text += has(EventModifierFlags::command) ? "⌘" : "";
    for (const char character : row.keyEquivalent) {
        text += character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
    }
    return text;
}

// The menu that hangs from a place in the menu bar, and on which display; absent for any other target.
std::optional<std::pair<sim::MenuPlace, std::size_t>> menuOf(const std::optional<DeskTarget>& target) {
    if (!target) {
        return std::nullopt;
    }
    if (target->kind == DeskTarget::Kind::statusItem) {
        return std::pair(sim::MenuPlace(sim::StatusItemIndex{target->index}), target->display);
    }
    if (target->kind == DeskTarget::Kind::mainMenuTitle) {
        return std::pair(sim::MenuPlace(sim::MainMenuIndex{target->index}), target->display);
    }
    return std::nullopt;
}

bool isRow(const std::optional<DeskTarget>& target) {
    return target && target->kind == DeskTarget::Kind::menuRow;
}

bool isPartOfMenu(const std::optional<DeskTarget>& target) {
    return isRow(target) || target == DeskTarget::menuPanel();
}

} // namespace

PartsOutcome ScreenParts::press(const std::optional<DeskTarget>& target) {
    neighbours_.catchUp();
    hovered_.reset();
    opener_.reset();
    const auto menu = menuOf(target);
    if (isMenuOpen() && !isPartOfMenu(target)) {
        const bool isSameMenu =
            menu && menu->first == *session_.menus().place() && menu->second == menuDisplay_;
        closeMenu();
        if (isSameMenu || !menu) {
            return {};
        }
    }
    if (menu) {
        openMenu(menu->first, menu->second);
        opener_ = target;
    } else if (!isPartOfMenu(target)) {
        windows_.press(target);
    }
    return {};
}

PartsOutcome ScreenParts::release(const std::optional<DeskTarget>& target) {
    neighbours_.catchUp();
    const std::optional<DeskTarget> opener = std::exchange(opener_, std::nullopt);
    if (!isMenuOpen()) {
        return {.pressedControl = windows_.release(target)};
    }
    if (isRow(target)) {
        return choose(target->index);
    }
    if (opener && target != opener && !isPartOfMenu(target)) {
        closeMenu(); // A drag ends elsewhere.
    }
    return {};
}

void ScreenParts::hover(const std::optional<DeskTarget>& target) {
    if (hovered_ != target) {
        hovered_ = target;
        hoveredSince_ = session_.clock().now();
    }
    windows_.hover(target);
    if (!isMenuOpen()) {
        return;
    }
    const auto menu = menuOf(target);
    const bool isInSameBar = menu && menu->second == menuDisplay_;
    if (isInSameBar && menu->first != *session_.menus().place()) {
        openMenu(menu->first, menu->second);
        return;
    }
    const auto rows = session_.menus().rows();
    highlightedRow_ = isRow(target) && target->index < rows.size() && canBeHighlighted(rows[target->index])
                          ? std::optional(target->index)
                          : std::nullopt;
}

void ScreenParts::openStatusMenu(std::size_t display) {
    openMenu(sim::StatusItemIndex{0}, display);
    moveHighlight(+1);
}

void ScreenParts::openMenu(const sim::MenuPlace& place, std::size_t display) {
    session_.user().openMenu(place);
    menuDisplay_ = display;
    highlightedRow_.reset();
}

void ScreenParts::closeMenu() {
    session_.user().closeMenu();
    noteClosedMenu();
}

void ScreenParts::noteClosedMenu() {
    highlightedRow_.reset();
    hoveredSince_ = session_.clock().now();
}

void ScreenParts::displaysChanged() {
    closeMenu();
    windows_.letGo();
    windows_.hover(std::nullopt);
    neighbours_.displaysChanged();
    opener_.reset();
    hovered_.reset();
}

PartsOutcome ScreenParts::choose(std::size_t row) {
    const auto rows = session_.menus().rows();
    PartsOutcome outcome;
    if (row < rows.size() && session_.user().chooseRow(row)) {
        outcome.chosenRow = rows[row].title;
        outcome.wasMarked = rows[row].state != ControlState::off;
    }
    if (!isMenuOpen()) {
        noteClosedMenu();
    }
    return outcome;
}

bool ScreenParts::takesKeys() {
    neighbours_.catchUp();
    return isMenuOpen() || session_.windows().receiverOfKeys();
}

PartsOutcome ScreenParts::press(NavigationKey key) {
    if (isMenuOpen()) {
        return pressInMenu(key);
    }
    return takesKeys() ? PartsOutcome{.pressedControl = windows_.press(key)} : PartsOutcome();
}

PartsOutcome ScreenParts::pressInMenu(NavigationKey key) {
    switch (key) {
    case NavigationKey::up:
        moveHighlight(-1);
        break;
    case NavigationKey::down:
        moveHighlight(+1);
        break;
    case NavigationKey::left:
        moveToMenuBeside(-1);
        break;
    case NavigationKey::right:
        moveToMenuBeside(+1);
        break;
    case NavigationKey::enter:
    case NavigationKey::space:
        if (highlightedRow_) {
            return choose(*highlightedRow_);
        }
        closeMenu();
        break;
    case NavigationKey::escape:
        closeMenu();
        break;
    case NavigationKey::tab:
    case NavigationKey::backTab:
        break;
    }
    return {};
}

void ScreenParts::moveHighlight(int step) {
    const auto rows = session_.menus().rows();
    const auto count = static_cast<int>(rows.size());
    int row = highlightedRow_ ? static_cast<int>(*highlightedRow_) : (step > 0 ? -1 : count);
    for (row += step; row >= 0 && row < count; row += step) {
        if (canBeHighlighted(rows[static_cast<std::size_t>(row)])) {
            highlightedRow_ = static_cast<std::size_t>(row);
            return;
        }
    }
}

void ScreenParts::moveToMenuBeside(int step) {
    const auto* title = std::get_if<sim::MainMenuIndex>(&*session_.menus().place());
    const auto count = static_cast<int>(session_.menus().mainMenuTitles().size());
    if (title == nullptr || count == 0) {
        return;
    }
    const int beside = (static_cast<int>(title->value) + step + count) % count;
    openMenu(sim::MainMenuIndex{static_cast<std::size_t>(beside)}, menuDisplay_);
    moveHighlight(+1);
}

PartsOutcome ScreenParts::pressEquivalent(std::string_view character, bool withShift) {
    const auto modifiers =
        withShift ? EventModifierFlags::command | EventModifierFlags::shift : EventModifierFlags::command;
    if (session_.user().press(character, modifiers)) {
        noteClosedMenu();
        return {.chosenRow = "⌘" + std::string(character)};
    }
    if (const auto key = session_.windows().receiverOfKeys();
        character == "w" && key && !key->isOfApplication()) {
        session_.user().closeWindow(key);
    }
    return {};
}

void ScreenParts::addTo(DeskPicture& picture) {
    neighbours_.catchUp();
    for (const auto& item : session_.statusItems().shown()) {
        StatusItemPicture shown;
        if (item->button && item->button->image) {
            const Image::State& image = *item->button->image->state();
            shown.imagePath = image.file;
            shown.imageSize = image.size.value_or(shown.imageSize);
            shown.isTemplate = image.isTemplate;
        }
        shown.toolTip = item->button ? item->button->toolTip : "";
        picture.statusItems.push_back(std::move(shown));
    }
    picture.mainMenuTitles = session_.menus().mainMenuTitles();
    picture.otherMenuTitles = neighbours_.menuTitles();
    addMenu(picture);
    addToolTip(picture);
    windows_.addTo(picture);
    if (session_.application().policy == ActivationPolicy::regular) {
        picture.dockIcon = session_.bundle().iconFile();
    }
}

void ScreenParts::addMenu(DeskPicture& picture) const {
    const auto& place = session_.menus().place();
    if (!place) {
        return;
    }
    MenuPicture menu;
    menu.display = menuDisplay_;
    if (const auto* title = std::get_if<sim::MainMenuIndex>(&*place)) {
        menu.anchor = MainMenuTitleAnchor{title->value};
    } else {
        menu.anchor = StatusItemAnchor{std::get<sim::StatusItemIndex>(*place).value};
    }
    const auto rows = session_.menus().rows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const sim::MenuRow& row = rows[index];
        menu.rows.push_back({row.isSeparator ? MenuRowKind::separator : MenuRowKind::item, row.title,
                             row.state != ControlState::off, row.isEnabled, highlightedRow_ == index,
                             keyText(row)});
    }
    picture.menu = std::move(menu);
}

void ScreenParts::addToolTip(DeskPicture& picture) {
    const bool isOverItem = hovered_ && hovered_->kind == DeskTarget::Kind::statusItem;
    const bool rests = session_.clock().now() - hoveredSince_ >= ToolTipDelay;
    if (!isOverItem || !rests || isMenuOpen() || hovered_->index >= picture.statusItems.size()) {
        return;
    }
    const std::string& text = picture.statusItems[hovered_->index].toolTip;
    if (!text.empty()) {
        picture.toolTip = ToolTipPicture{hovered_->display, hovered_->index, text};
    }
}

} // namespace kestrune::desk
