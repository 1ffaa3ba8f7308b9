// Software updates as they must be, worked out from the rules a second time and without their code: what the
// framework shows, and what the application makes of it.
#pragma once

#include "sim/services/UpdateSupply.h"
#include "tests/random/application/WindowsModel.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::simulate {

enum class UpdateStage { idle, checking, update, alert };

struct UpdatesModel {
    // The application's part.
    bool hasUpdater = false;
    bool isObserving = false;
    std::optional<bool> savedIsRegular = std::nullopt;

    // The framework's part, while it has started.
    UpdateStage stage = UpdateStage::idle;
    std::uint64_t session = 0;
    WindowsModel::Window window = nullptr; // null while nothing is shown

    // Of what is shown: the buttons' titles in order, and those that Return and Escape press; empty when
    // there is none.
    std::vector<std::string> buttons() const;
    std::string defaultButton() const;
    std::string cancelButton() const;
};

// Whether a window is taken for the updater's by its class alone, or by its title too.
bool isOfUpdatersClass(const WindowModel& window);
bool isTakenForUpdaters(const WindowModel& window);

} // namespace kestrune::simulate
