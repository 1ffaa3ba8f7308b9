#include "sim/services/Accessibility.h"

namespace kestrune::sim {

bool Accessibility::readsAsTrusted() const {
    return !faults_.delaysTrust &&
           (permission_ == Permission::granted || permission_ == Permission::rowDeleted);
}

void Accessibility::listApplication() {
    if (permission_ == Permission::notListed) {
        permission_ = Permission::switchedOff;
    }
}

void Accessibility::askUser() {
    listApplication();
    isDialogShown_ = true;
    tell(true);
}

void Accessibility::answerDialog(DialogAnswer answer) {
    isDialogShown_ = false;
    isPaneShown_ = isPaneShown_ || answer == DialogAnswer::openSettings;
    tell(isPaneShown_);
}

void Accessibility::showPane() {
    isPaneShown_ = true;
    tell(true);
}

void Accessibility::closePane() {
    isPaneShown_ = false;
    tell(isDialogShown_);
}

void Accessibility::tell(bool isInFront) const {
    if (systemInFront_) {
        systemInFront_(isInFront);
    }
}

bool Accessibility::isListed() const {
    return permission_ != Permission::notListed && permission_ != Permission::rowDeleted;
}

bool Accessibility::isSwitchedOn() const {
    return permission_ == Permission::granted || permission_ == Permission::stale;
}

void Accessibility::processEnded() {
    if (permission_ == Permission::rowDeleted) {
        permission_ = Permission::notListed;
    }
}

} // namespace kestrune::sim
