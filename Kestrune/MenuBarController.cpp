#include "Kestrune/MenuBarController.h"

#include "Kestrune/AccessibilityPane.h"
#include "Kestrune/Localized.h"
#include "Kestrune/RunningApplication.h"
#include "base/Fatal.h"
#include "platform/AccessibilityTrust.h"

#include <cstdint>
#include <utility>

namespace kestrune {

namespace {

constexpr Size IconSize{20, 20};

constexpr Selector ToggleEnabled{"toggleEnabled"};
constexpr Selector SelectScreen{"selectScreen:"};
constexpr Selector OpenAccessibilitySettings{"openAccessibilitySettings"};
constexpr Selector ShowSettings{"showSettings"};
constexpr Selector ShowWelcome{"showWelcome"};
constexpr Selector Quit{"quit"};

constexpr ActionMethod StatusMenuActions[] = {
    action<&MenuBarController::toggleEnabled>(ToggleEnabled),
    action<&MenuBarController::selectScreen>(SelectScreen),
    action<&MenuBarController::openAccessibilitySettings>(OpenAccessibilitySettings),
    action<&MenuBarController::showSettings>(ShowSettings),
    action<&MenuBarController::showWelcome>(ShowWelcome),
    action<&MenuBarController::quit>(Quit),
};

// Towards zero.
std::string wholePoints(double length) {
    constexpr double FirstBeyond = 9223372036854775808.0; // 2^63; the one before -2^63 is not representable
    if (!(length >= -FirstBeyond && length < FirstBeyond)) {
        fatal("A display's width or height is no number of points that an integer can hold.");
    }
    return std::to_string(static_cast<std::int64_t>(length));
}

std::string titleOf(const ManagedScreen& screen, bool isMain) {
    std::string title = "  " + screen.localizedName + "  (" + wholePoints(screen.cgFrame.width()) + "\u00D7" +
                        wholePoints(screen.cgFrame.height()) + ")";
    if (isMain) {
        title += "  (" + localized("Main") + ")";
    }
    return title;
}

} // namespace

std::shared_ptr<MenuBarController> MenuBarController::make(std::shared_ptr<Preferences> preferences,
                                                           std::shared_ptr<DockGuardController> dockGuard,
                                                           Openers openers) {
    auto made = std::make_shared<MenuBarController>(Construction(), std::move(preferences),
                                                    std::move(dockGuard), std::move(openers));
    made->configureStatusItem();
    made->rebuildMenu();
    return made;
}

MenuBarController::MenuBarController(Construction, std::shared_ptr<Preferences> preferences,
                                     std::shared_ptr<DockGuardController> dockGuard, Openers openers)
    : preferences_(std::move(preferences)),
      dockGuard_(std::move(dockGuard)),
      statusItem_(StatusBar::systemStatusBar().statusItem(VariableStatusItemLength)),
      openSettings_(std::move(openers.openSettings)),
      openWelcome_(std::move(openers.openWelcome)) {
    init();
}

std::span<const ActionMethod> MenuBarController::actionMethods() const { return StatusMenuActions; }

void MenuBarController::setOnAccessibilityGranted(std::function<void()> onAccessibilityGranted) {
    onAccessibilityGranted_ = std::move(onAccessibilityGranted);
}

void MenuBarController::configureStatusItem() {
    std::optional<StatusBarButton> button = statusItem_.button();
    if (!button) {
        return;
    }
    std::optional<Image> image = Image::imageNamed("MenuBarIcon");
    if (image) {
        image->setTemplate(true);
        image->setSize(IconSize);
    }
    button->setImage(image);
    button->setImageScaling(ImageScaling::proportionallyDown);
    button->setToolTip(localized("Kestrune — Pin the Dock to one screen"));
}

bool MenuBarController::isSetupComplete() const {
    return isProcessTrusted() && preferences_->defaults().boolForKey(Preferences::HasCompletedOnboardingKey);
}

void MenuBarController::rebuildMenu() {
    Menu menu;
    menu.setAutoenablesItems(false);
    const bool setupComplete = isSetupComplete();
    if (!setupComplete) {
        addSetupItem(menu);
    }
    addScreenItems(menu, setupComplete);
    menu.addItem(MenuItem::separatorItem());
    MenuItem toggle = itemForThis(localized(preferences_->isEnabled() ? "Disable" : "Enable"),
                                  setupComplete ? ToggleEnabled : ShowWelcome, "");
    toggle.setEnabled(true);
    menu.addItem(toggle);
    menu.addItem(MenuItem::separatorItem());
    menu.addItem(itemForThis(localized("Settings…"), setupComplete ? ShowSettings : ShowWelcome, ","));
    menu.addItem(itemForThis(localized("Quit"), Quit, "q"));
    menu.setDelegate(weak_from_this());
    statusItem_.setMenu(menu);
}

void MenuBarController::addSetupItem(Menu& menu) {
    menu.addItem(itemForThis(localized("Complete setup…"), ShowWelcome, ""));
    menu.addItem(MenuItem::separatorItem());
}

void MenuBarController::addScreenItems(Menu& menu, bool setupComplete) {
    MenuItem heading(localized("Pin Dock to:"), std::nullopt, "");
    heading.setEnabled(false);
    menu.addItem(heading);
    const std::vector<ManagedScreen> screens = allScreens();
    const std::optional<std::string> mainUUID = mainScreenUUID();
    const std::optional<std::string> marked = markedUUID(screens, mainUUID);
    for (const ManagedScreen& screen : screens) {
        menu.addItem(screenItem(screen, mainUUID, marked, setupComplete));
    }
}

// The stored choice itself, not what the guard made of it: a display that is gone leaves no item marked until
// the guard's next refresh replaces the choice.
std::optional<std::string> MenuBarController::markedUUID(const std::vector<ManagedScreen>& screens,
                                                         const std::optional<std::string>& mainUUID) const {
    if (std::optional<std::string> stored =
            preferences_->defaults().stringForKey(Preferences::PinnedScreenUUIDKey)) {
        return stored;
    }
    if (mainUUID || screens.empty()) {
        return mainUUID;
    }
    return screens.front().uuid;
}

MenuItem MenuBarController::screenItem(const ManagedScreen& screen,
                                       const std::optional<std::string>& mainUUID,
                                       const std::optional<std::string>& markedUUID, bool setupComplete) {
    MenuItem item = itemForThis(titleOf(screen, mainUUID == screen.uuid), SelectScreen, "");
    item.setRepresentedObject(screen.uuid);
    item.setState(markedUUID == screen.uuid ? ControlState::on : ControlState::off);
    item.setEnabled(setupComplete);
    return item;
}

MenuItem MenuBarController::itemForThis(std::string_view title, const Selector& action,
                                        std::string_view keyEquivalent) {
    MenuItem item(title, action, keyEquivalent);
    item.setTarget(weak_from_this());
    return item;
}

void MenuBarController::menuWillOpen(const Menu&) noexcept {
    if (isProcessTrusted() && !dockGuard_->isRunning() && onAccessibilityGranted_) {
        onAccessibilityGranted_();
    }
    rebuildMenu();
}

void MenuBarController::toggleEnabled() {
    preferences_->defaults().setBool(!preferences_->isEnabled(), Preferences::IsEnabledKey);
    if (!preferences_->isEnabled()) {
        dockGuard_->stop();
    } else if (!dockGuard_->isRunning() && isProcessTrusted()) {
        dockGuard_->refreshScreens();
        dockGuard_->start();
    }
    rebuildMenu();
}

void MenuBarController::selectScreen(const MenuItem& sender) {
    const std::optional<RepresentedObject> object = sender.representedObject();
    const auto* uuid = object ? std::get_if<std::string>(&*object) : nullptr;
    if (uuid == nullptr) {
        return;
    }
    preferences_->defaults().setObject(*uuid, Preferences::PinnedScreenUUIDKey);
    dockGuard_->refreshScreens();
    rebuildMenu();
}

void MenuBarController::openAccessibilitySettings() {
    isProcessTrustedWithOptions({.prompt = true});
    openAccessibilityPane();
}

void MenuBarController::showSettings() { openSettings_(); }

void MenuBarController::showWelcome() { openWelcome_(); }

void MenuBarController::quit() { runningApplication().terminate(); }

} // namespace kestrune
