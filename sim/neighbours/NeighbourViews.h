// What stands in the windows of the programs beside the application.
#pragma once

#include "sim/formats/BundleContents.h"
#include "sim/neighbours/MailLink.h"
#include "ui/View.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrune::sim {

// An application as the system shows it. Its icon is a PNG file; without one a general icon is shown.
struct ListedApplication {
    std::string name;
    std::string iconPath;
};
ListedApplication listedApplication(const BundleContents& bundle);

// The system's question whether an application may control the computer.
ui::View permissionDialog(const ListedApplication& application, std::function<void()> openSettings,
                          std::function<void()> deny);

struct PaneRow {
    ListedApplication application;
    bool isOn = false;
    bool isSelected = false;
    std::function<void()> flip;
    std::function<void()> select;
};

// A pane of System Settings: applications, and what each of them may do, beside the list of chapters.
struct SettingsPane {
    std::string chapter; // of the list beside it
    std::string sentence;
    std::vector<PaneRow> rows;
    std::function<void()> deselect;
    std::function<void()> remove; // of the selected row; without one there is nothing to press
};
ui::View settingsPane(const SettingsPane& pane);

// A mail that is not sent yet.
ui::View mailView(const MailLink& mail);

} // namespace kestrune::sim
