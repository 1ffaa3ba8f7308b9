// The user in System Settings, at the panes that concern the application.
#pragma once

#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskTarget.h"
#include "sim/session/Session.h"

#include <string>

namespace kestrune::desk {

// One window, which shows one pane at a time: Accessibility, which the application and the system lead to, or
// Login Items. The application's row among the login items is on while it is enabled, and off while it waits
// for the user's approval.
class SystemSettings {
public:
    // `session` must outlive the settings.
    explicit SystemSettings(sim::Session& session) : session_(session) {}

    // The user opens the pane from the System Settings' own list.
    void openLoginItems();

    // A button, switch or row of the pane was pressed; any other target does nothing.
    void act(const DeskTarget& target);

    // On the display with that index.
    void addTo(DeskPicture& picture, const std::string& iconPath, std::size_t display) const;

private:
    // The Accessibility pane replaces the other as soon as somebody leads to it.
    bool showsLoginItems() const { return areLoginItemsOpen_ && !session_.accessibility().isPaneShown(); }
    bool isLoginItem() const;
    void flipSwitch();
    void removeRow();
    void close();

    sim::Session& session_;
    bool areLoginItemsOpen_ = false;
    bool isRowSelected_ = false;
};

} // namespace kestrune::desk
