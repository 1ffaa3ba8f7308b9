// Where the permission dialog and its parts stand, in window coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::desk {

struct AlertLayout {
    Rect frame;
    Rect titleBar;
    Rect icon;
    Rect message;
    Rect information;
    Rect openSystemSettings;
    Rect deny;
};

// Absent without a permission dialog.
std::optional<AlertLayout> alertLayout(TextMeasure& measure, const DeskPicture& picture);

// What the dialog says, and how it is set; the colours are left to the painter.
std::string alertMessage(const PermissionDialogPicture& dialog);
inline constexpr std::string_view AlertTitle = "Accessibility Access (Events)";
inline constexpr std::string_view AlertInformation =
    "Grant access to this application in Privacy & Security settings, located in System Settings.";
inline constexpr std::string_view OpenSystemSettingsLabel = "Open System Settings";
inline constexpr std::string_view DenyLabel = "Deny";
inline constexpr int AlertLongestText = 4; // lines
TextStyle alertMessageStyle();
TextStyle alertInformationStyle();

} // namespace kestrune::desk
