// The Settings window.
#pragma once

#include "Kestrune/SettingsViewModel.h"
#include "platform/WindowController.h"

#include <memory>
#include <span>
#include <string_view>

namespace kestrune {

// Owned by the application delegate from the first time that the user wants Settings to the end of the
// process; closing the window hides it. While it is open the application has a Dock icon. The model's actions
// hold it weakly. Main thread only.
class SettingsWindowController : public WindowController,
                                 public std::enable_shared_from_this<SettingsWindowController> {
    struct Construction {};

public:
    // Makes the window, which `show` brings on screen.
    static std::shared_ptr<SettingsWindowController> make();

    explicit SettingsWindowController(Construction /*by make*/);

    // Brings the window on screen and the application to the front, with the switch as the system has it.
    void show();

    void windowWillClose() noexcept override;

    std::string_view className() const override { return "SettingsWindowController"; }
    std::string_view sourcePath() const override { return "Kestrune/SettingsWindowController"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }

    const std::shared_ptr<SettingsViewModel>& model() const { return model_; }

private:
    void installActions();
    void hostView();

    std::shared_ptr<SettingsViewModel> model_;
};

} // namespace kestrune
