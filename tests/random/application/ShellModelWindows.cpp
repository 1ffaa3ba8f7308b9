// What the user does at the application's windows, and what it must come to.
#include "tests/random/application/ShellModel.h"

namespace kestrune::simulate {

std::vector<WindowsModel::Window> ShellModel::shownWindows() const {
    return process_ ? process_->windows.shown() : std::vector<WindowsModel::Window>();
}

std::vector<std::string> ShellModel::buttonsOf(const WindowModel& window) const {
    switch (window.kind) {
    case WindowKind::wizard:
        return process_->wizard->shownPage.buttons();
    case WindowKind::settings:
        return {translated(translations_, "Check for Updates\xE2\x80\xA6"),
                translated(translations_, "Report a Bug\xE2\x80\xA6")};
    case WindowKind::updates:
        break;
    }
    return process_->updates.buttons();
}

void ShellModel::countStep() {
    if (shownWindows().size() > 1) {
        counts_.add(Happening::stepsWithSeveralWindows);
    }
    if (isAlertShown()) {
        counts_.add(Happening::stepsWithAnAlert);
    }
}

void ShellModel::setActive(bool isActive) {
    if (process_) {
        process_->windows.setActive(isActive);
    }
}

// The wizard looks at the permission, whatever it knew; and the updater's windows are made to float.
void ShellModel::becameKey(WindowModel& window) {
    counts_.add(Happening::windowsBecomeKey);
    if (window.kind == WindowKind::wizard) {
        publishTrust();
    }
    if (process_->updates.isObserving && isTakenForUpdaters(window)) {
        counts_.add(window.kind == WindowKind::updates ? Happening::updatersWindowsFloated
                                                       : Happening::otherWindowsFloated);
        window.isFloating = true;
        window.hides = false;
    }
}

void ShellModel::clickWindow(std::size_t place) {
    const auto windows = shownWindows();
    if (place < windows.size()) {
        process_->windows.click(windows[place]);
    }
}

// Only the updater's windows have no close button.
void ShellModel::closeWindow(std::size_t place) {
    const auto windows = shownWindows();
    if (place >= windows.size() || windows[place]->kind == WindowKind::updates) {
        return;
    }
    counts_.add(windows[place]->kind == WindowKind::wizard ? Happening::wizardsClosed
                                                           : Happening::settingsClosed);
    if (windows.size() > 1) {
        counts_.add(Happening::windowsClosedBesideOthers);
    }
    process_->isRegular = false;
    process_->windows.orderOut(windows[place]);
}

bool ShellModel::pressButton(std::size_t place, std::size_t button) {
    const auto windows = shownWindows();
    if (place >= windows.size()) {
        return false;
    }
    const std::vector<std::string> titles = buttonsOf(*windows[place]);
    if (button >= titles.size()) {
        return false;
    }
    clickWindow(place);
    pressTitled(*windows[place], titles[button]);
    return true;
}

void ShellModel::pressTitled(const WindowModel& window, const std::string& title) {
    switch (window.kind) {
    case WindowKind::wizard:
        pressInWizard(title);
        break;
    case WindowKind::settings:
        pressInSettings(title);
        break;
    case WindowKind::updates:
        dismiss();
        break;
    }
}

bool ShellModel::pressReturn() { return pressKeyWindow(true); }

bool ShellModel::pressEscape() { return pressKeyWindow(false); }

bool ShellModel::pressKeyWindow(bool isReturn) {
    const WindowsModel::Window key = process_ ? process_->windows.key() : nullptr;
    std::string title;
    if (key && key->kind == WindowKind::wizard && isReturn) {
        title = process_->wizard->shownPage.defaultButton();
    } else if (key && key->kind == WindowKind::updates) {
        title = isReturn ? process_->updates.defaultButton() : process_->updates.cancelButton();
    }
    if (title.empty()) {
        return false;
    }
    pressTitled(*key, title);
    return true;
}

} // namespace kestrune::simulate
