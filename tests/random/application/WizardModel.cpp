#include "tests/random/application/WizardModel.h"

namespace kestrune::simulate {

std::vector<std::string> WizardPage::buttons() const {
    if (isIntro) {
        return {"Get started"};
    }
    if (isTrusted) {
        return {"Finish"};
    }
    return hasRequested ? std::vector<std::string>{"Open System Settings", "Request permission"}
                        : std::vector<std::string>{"Request permission"};
}

std::string WizardPage::defaultButton() const {
    return isIntro || isTrusted ? buttons().front() : std::string();
}

std::string WizardPage::status() const {
    if (isIntro) {
        return "";
    }
    return isTrusted ? "Permission granted" : "Waiting for permission\xE2\x80\xA6";
}

} // namespace kestrune::simulate
