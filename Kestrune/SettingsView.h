// The Settings form.
#pragma once

#include "Kestrune/SettingsViewModel.h"
#include "ui/View.h"

#include <memory>

namespace kestrune {

// The whole content of the Settings window: the switch, the two buttons, and the footer below them.
struct SettingsView {
    std::shared_ptr<SettingsViewModel> model;

    ui::View body() const;
};

// Which version this is, and whose work.
struct SettingsFooter {
    ui::View body() const;
};

} // namespace kestrune
