#include "tests/contract/World.h"

#include "base/Fatal.h"
#include "sim/services/StatusItemState.h"
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"
#include "tests/ui/SceneParts.h"

#include <chrono>
#include <utility>

namespace kestrune::contract {

struct World::State {
    bool open(const sim::MenuPlace& place, const std::function<void()>& whileOpen);

    sim::Session session;
};

namespace {

sim::SessionOptions options(const BundleFiles& bundle) {
    sim::SessionOptions result;
    result.bundle.infoDictionary.clear();
    for (const auto& [key, value] : bundle.infoDictionary) {
        result.bundle.infoDictionary.emplace(
            key, std::visit([](const auto& plain) { return sim::PropertyList{plain}; }, value));
    }
    result.bundle.localizedStrings.insert(bundle.localizedStrings.begin(), bundle.localizedStrings.end());
    result.bundle.images.clear();
    for (const std::string& name : bundle.imageNames) {
        result.bundle.images.emplace(name, "");
    }
    return result;
}

sim::Permission permission(Trust trust) {
    switch (trust) {
    case Trust::notListed:
        return sim::Permission::notListed;
    case Trust::switchedOff:
        return sim::Permission::switchedOff;
    case Trust::granted:
        return sim::Permission::granted;
    case Trust::rowDeleted:
        return sim::Permission::rowDeleted;
    case Trust::outdated:
        break;
    }
    return sim::Permission::stale;
}

Trust trustOf(sim::Permission permission) {
    switch (permission) {
    case sim::Permission::notListed:
        return Trust::notListed;
    case sim::Permission::switchedOff:
        return Trust::switchedOff;
    case sim::Permission::granted:
        return Trust::granted;
    case sim::Permission::rowDeleted:
        return Trust::rowDeleted;
    case sim::Permission::stale:
        break;
    }
    return Trust::outdated;
}

LoggedMessage::Level levelOf(sim::LogLevel level) {
    switch (level) {
    case sim::LogLevel::debug:
        return LoggedMessage::Level::debug;
    case sim::LogLevel::info:
        return LoggedMessage::Level::info;
    case sim::LogLevel::error:
        break;
    }
    return LoggedMessage::Level::error;
}

LoggedMessage messageOf(const sim::LogRecord& record) {
    return {levelOf(record.level), record.subsystem, record.category, record.message, record.format};
}

ShownRow rowOf(const sim::MenuRow& row) {
    return {row.title, row.state, row.isEnabled, row.isSeparator, row.keyEquivalent, row.modifiers};
}

struct AsAccessibleElement {
    using Role = AccessibleElement::Role;

    AccessibleElement operator()(const ui::TextElement& text) const {
        return {Role::text, text.text.string(), !text.isAccessibilityHidden};
    }
    AccessibleElement operator()(const ui::SymbolElement& /*symbol*/) const {
        return {Role::image, "", false};
    }
    AccessibleElement operator()(const ui::ShapeElement& /*shape*/) const { return {Role::shape, "", false}; }
    AccessibleElement operator()(const ui::ButtonElement& button) const {
        return {Role::button, button.title, true};
    }
    AccessibleElement operator()(const ui::ToggleElement& toggle) const {
        return {Role::toggle, toggle.title, true};
    }
};

ShownWindow shownWindow(const Window::State& window, bool isKey) {
    ShownWindow shown;
    shown.title = window.title;
    shown.content = window.contentRect();
    shown.level = window.level;
    shown.isKey = isKey;
    shown.hasCloseButton = window.has(WindowStyleMask::closable);
    shown.isResizable = window.has(WindowStyleMask::resizable);
    shown.joinsAllSpaces = window.has(WindowCollectionBehavior::canJoinAllSpaces);
    const ui::Scene& scene = sim::Windows::sceneOf(window);
    shown.texts = ui::shownTexts(scene);
    shown.buttons = ui::buttonTitles(scene);
    for (const ui::ToggleElement& toggle : ui::elementsOf<ui::ToggleElement>(scene)) {
        shown.switches.push_back(toggle.isOn);
    }
    for (const ui::Element& element : scene.elements) {
        shown.elements.push_back(std::visit(AsAccessibleElement(), element));
    }
    return shown;
}

struct AsPropertyList {
    template <typename Plain>
    sim::PropertyList operator()(const Plain& value) const {
        return {value};
    }
    // The simulation keeps a data value's text as it stands and never looks into it.
    sim::PropertyList operator()(const StoredData& data) const {
        return {sim::PropertyList::Data{data.bytes}};
    }
    sim::PropertyList operator()(const StoredDate& date) const {
        return {sim::PropertyList::Date{date.iso8601}};
    }
    sim::PropertyList operator()(const StoredArray& array) const {
        sim::PropertyList::Array items;
        for (const std::string& item : array.items) {
            items.push_back({item});
        }
        return {std::move(items)};
    }
    sim::PropertyList operator()(const StoredDictionary& dictionary) const {
        return {sim::PropertyListDictionary{{dictionary.key, {dictionary.value}}}};
    }
};

} // namespace

World::World(const BundleFiles& bundle) : state_(new State{sim::Session(options(bundle))}) {}

World::~World() = default;

void World::connect(const std::vector<ConnectedDisplay>& displays) {
    std::vector<sim::Display> connected;
    for (const ConnectedDisplay& display : displays) {
        connected.push_back(
            {display.displayID, display.uuid, display.screenNumber, display.localizedName, display.bounds});
    }
    state_->session.changeDisplays(std::move(connected));
    setMainDisplay(0);
}

void World::announceDisplays() {
    sim::Session& session = state_->session;
    session.changeDisplays(session.displays().connected());
}

void World::setMainDisplay(std::optional<std::size_t> index) { state_->session.displays().setMain(index); }

void World::failUUIDStrings() { state_->session.displays().setUUIDStringsFail(true); }

void World::setTrust(Trust trust) { state_->session.user().setPermission(permission(trust)); }

Trust World::trust() const { return trustOf(state_->session.accessibility().permission()); }

void World::followTrustDialog() { state_->session.user().openSettingsFromDialog(); }

bool World::isTrustDialogShown() const { return state_->session.accessibility().isDialogShown(); }

void World::store(std::string_view key, const StoredValue& value) {
    state_->session.defaults().set(key, std::visit(AsPropertyList(), value));
}

std::optional<DeliveredEvent> World::deliver(EventType type, Point location) {
    const sim::Delivery delivery = state_->session.post(type, location);
    if (delivery.swallowed) {
        return std::nullopt;
    }
    return DeliveredEvent{delivery.type, delivery.delivered, delivery.replaced};
}

void World::switchTapsOff(EventType reason) { state_->session.faults().disableTaps(reason); }

std::vector<LoggedMessage> World::loggedMessages() const {
    std::vector<LoggedMessage> messages;
    for (const sim::LogRecord& record : state_->session.logRecords()) {
        messages.push_back(messageOf(record));
    }
    return messages;
}

void World::letTimePass(double seconds) {
    state_->session.advance(
        std::chrono::duration_cast<sim::Duration>(std::chrono::duration<double>(seconds)));
}

void World::onAnotherThread(const std::function<void()>& work) {
    state_->session.faults().onAnotherThread(work);
}

// In the simulation `run` returns after the launch, and `terminate:` after the process has ended.
void World::launch(const std::function<void()>& work) { work(); }

void World::catchTermination(const std::function<void()>& work) { work(); }

void World::activateApplication() { state_->session.user().switchToApplication(); }

void World::activateAnotherApplication() { state_->session.user().switchAway(); }

bool World::reopenApplication() { return state_->session.user().reopenApplication(); }

bool World::isActive() const { return state_->session.application().isActive; }

ActivationPolicy World::activationPolicy() const { return state_->session.application().policy; }

std::size_t World::statusItemCount() const { return state_->session.statusItems().shown().size(); }

ShownButton World::statusButton(std::size_t statusItem) const {
    const StatusBarButton::State& button = *state_->session.statusItems().shown().at(statusItem)->button;
    ShownButton shown{std::nullopt, button.scaling, button.toolTip};
    if (button.image) {
        const Image::State& image = *button.image->state();
        shown.image = {image.name, image.isTemplate, image.size};
    }
    return shown;
}

bool World::State::open(const sim::MenuPlace& place, const std::function<void()>& whileOpen) {
    if (!session.user().openMenu(place)) {
        return false;
    }
    whileOpen();
    session.user().closeMenu();
    return true;
}

bool World::openStatusMenu(const std::function<void()>& whileOpen, std::size_t statusItem) {
    return state_->open(sim::StatusItemIndex{statusItem}, whileOpen);
}

bool World::openMainMenu(std::size_t item, const std::function<void()>& whileOpen) {
    return state_->open(sim::MainMenuIndex{item}, whileOpen);
}

std::vector<ShownRow> World::openMenuRows() const {
    std::vector<ShownRow> rows;
    for (const sim::MenuRow& row : state_->session.menus().rows()) {
        rows.push_back(rowOf(row));
    }
    return rows;
}

void World::chooseRow(std::size_t row) { state_->session.user().chooseRow(row); }

void World::pressKey(std::string_view character, EventModifierFlags modifiers) {
    if (!state_->session.user().press(character, modifiers) && character == "\r") {
        state_->session.user().press(ui::KeyboardShortcut::defaultAction);
    }
}

std::vector<ShownWindow> World::shownWindows() const {
    const auto key = state_->session.windows().keyWindow();
    std::vector<ShownWindow> windows;
    for (const auto& window : state_->session.windows().shown()) {
        windows.push_back(shownWindow(*window, window == key));
    }
    return windows;
}

void World::clickTitleBar(std::size_t window) {
    state_->session.user().clickWindow(state_->session.windows().shown().at(window));
}

void World::clickCloseButton(std::size_t window) {
    state_->session.user().closeWindow(state_->session.windows().shown().at(window));
}

void World::clickMinimizeButton(std::size_t window) {
    state_->session.user().miniaturizeWindow(state_->session.windows().shown().at(window));
}

void World::clickButton(std::string_view title, std::size_t window) {
    const auto clicked = state_->session.windows().shown().at(window);
    const auto place = ui::placeOfButton(sim::Windows::sceneOf(*clicked), title);
    if (!place) {
        fatal("There is no button of that title.");
    }
    state_->session.user().pressButton(clicked, *place);
}

void World::clickSwitch(std::size_t index, std::size_t window) {
    const auto clicked = state_->session.windows().shown().at(window);
    state_->session.user().flipSwitch(
        clicked, ui::placesOf<ui::ToggleElement>(sim::Windows::sceneOf(*clicked)).at(index));
}

void World::constructFromArchive(std::string_view className) {
    state_->session.windows().refuseConstruction(className);
}

void World::constructFromWindow(std::string_view className) {
    state_->session.windows().refuseConstruction(className);
}

std::string World::crashReportMessage() const { return state_->session.crashReportMessage(); }

std::vector<std::string> World::openedURLs() const { return state_->session.openedURLs(); }

void World::letNobodyOpenURLs() { state_->session.faults().refuseOpeningURLs(true); }

} // namespace kestrune::contract
