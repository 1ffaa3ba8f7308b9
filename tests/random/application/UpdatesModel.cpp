#include "tests/random/application/UpdatesModel.h"

namespace kestrune::simulate {

std::vector<std::string> UpdatesModel::buttons() const {
    switch (window ? stage : UpdateStage::idle) {
    case UpdateStage::checking:
        return {"Cancel"};
    case UpdateStage::update:
        return {"Skip This Version", "Remind Me Later", "Install Update"};
    case UpdateStage::alert:
        return {"OK"};
    case UpdateStage::idle:
        break;
    }
    return {};
}

std::string UpdatesModel::defaultButton() const {
    return stage == UpdateStage::update ? "Install Update" : stage == UpdateStage::alert ? "OK" : "";
}

std::string UpdatesModel::cancelButton() const {
    return stage == UpdateStage::update ? "Remind Me Later" : "";
}

bool isOfUpdatersClass(const WindowModel& window) {
    return window.className.find("SPU") != std::string::npos ||
           window.className.find("Sparkle") != std::string::npos;
}

bool isTakenForUpdaters(const WindowModel& window) {
    return isOfUpdatersClass(window) || window.title.find("Update") != std::string::npos;
}

} // namespace kestrune::simulate
