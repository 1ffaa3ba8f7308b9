// The user in System Settings, at the panes that concern the application.
#pragma once

#include "sim/session/Session.h"
#include "ui/View.h"

#include <optional>
#include <string>

namespace kestrune::sim {

// One window, which shows one pane at a time: Accessibility, which the application and the system lead to, or
// Login Items. The application's row among the login items is on while it is enabled, and off while it waits
// for the user's approval.
class SystemSettings {
public:
    // `session` must outlive the settings.
    explicit SystemSettings(Session& session) : session_(session) {}

    void openLoginItems();

    // Of the pane; absent while the window is closed.
    std::optional<std::string> title() const;
    ui::View view();

    // All that the view depends on; another text when anything of it has changed.
    std::string facts() const;

    // The user closes the window. False when nobody but the user had led to its pane.
    bool close();

private:
    // The Accessibility pane replaces the other as soon as somebody leads to it.
    bool showsLoginItems() const { return areLoginItemsOpen_ && !session_.accessibility().isPaneShown(); }
    bool isListed() const;
    bool isOn() const;
    void flipSwitch();
    void removeRow();

    Session& session_;
    bool areLoginItemsOpen_ = false;
    bool isRowSelected_ = false;
};

} // namespace kestrune::sim
