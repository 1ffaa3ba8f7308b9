// What the user does at the application's windows, and at the system's dialog and settings.
#include "tests/random/application/ShellUser.h"

#include <algorithm>

namespace kestrune::simulate {

// Behind an alert nobody can do anything; before it, mostly in front.
std::size_t ShellUser::windowPlace() {
    if (session_->model().isAlertShown()) {
        return placeOf(WindowKind::updates).value_or(0);
    }
    const std::size_t count = session_->model().shownWindows().size();
    return random_.chance(0.5) ? 0 : random_.index(count + 1);
}

std::optional<std::size_t> ShellUser::placeOf(WindowKind kind) const {
    const auto windows = session_->model().shownWindows();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [kind](const auto& window) { return window->kind == kind; });
    return found != windows.end() ? std::optional(static_cast<std::size_t>(found - windows.begin()))
                                  : std::nullopt;
}

std::string ShellUser::pressButton() {
    const std::size_t place = windowPlace();
    const std::size_t button = random_.index(2);
    session_->pressButton(place, button);
    return "the button " + std::to_string(button) + " of the window " + std::to_string(place) + " is pressed";
}

std::string ShellUser::flipSwitch() {
    const std::size_t place = placeOf(WindowKind::settings).value_or(0);
    session_->flipSwitch(place);
    return "the switch of the window " + std::to_string(place) + " is flipped";
}

std::string ShellUser::pressReturn() {
    session_->pressReturn();
    return "Return is pressed";
}

std::string ShellUser::pressEscape() {
    session_->pressEscape();
    return "Escape is pressed";
}

std::string ShellUser::clickWindow() {
    const std::size_t place = windowPlace();
    session_->clickWindow(place);
    return "the window " + std::to_string(place) + " is clicked";
}

std::string ShellUser::closeWindow() {
    const std::size_t place = windowPlace();
    session_->closeWindow(place);
    return "the window " + std::to_string(place) + " is closed";
}

std::string ShellUser::answerDialog() {
    const bool opensSettings = random_.chance(0.6);
    if (opensSettings) {
        session_->openSettingsFromDialog();
    } else {
        session_->denyInDialog();
    }
    return opensSettings ? "the system's dialog leads to its settings" : "the system's dialog is denied";
}

std::string ShellUser::closePane() {
    session_->closePane();
    return "System Settings is closed";
}

std::string ShellUser::refuseActivation() {
    const bool refuse = random_.chance(0.3);
    session_->refuseActivation(refuse);
    return refuse ? "the system refuses activation" : "the system allows activation";
}

std::string ShellUser::refuseOpeningURLs() {
    const bool refuse = random_.chance(0.3);
    session_->refuseOpeningURLs(refuse);
    return refuse ? "nobody opens addresses" : "addresses are opened";
}

} // namespace kestrune::simulate
