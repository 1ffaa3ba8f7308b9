// What the user does at the wizard, and at the system's dialog and settings.
#include "tests/shell/ShellUser.h"

namespace kestrune::simulate {

std::string ShellUser::pressWizardButton() {
    const std::size_t index = random_.index(2);
    session_->pressWizardButton(index);
    return "the wizard's button " + std::to_string(index) + " is pressed";
}

std::string ShellUser::pressReturn() {
    session_->pressReturn();
    return "Return is pressed";
}

std::string ShellUser::clickWizard() {
    session_->clickWizard();
    return "the wizard is clicked";
}

std::string ShellUser::closeWizard() {
    session_->closeWizard();
    return "the wizard is closed";
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

} // namespace kestrune::simulate
