#include "desk/paint/mac/AlertLayout.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double Width = 452;
constexpr double Padding = 20;
constexpr double IconSide = 64;
constexpr double IconGap = 18;
constexpr double ContentTop = 14; // below the title bar
constexpr double TextGap = 8;
constexpr double ButtonsGap = 20; // above the buttons
constexpr double ButtonSpacing = 10;
constexpr double NarrowestButton = 78;
constexpr double HeightOnDisplay = 0.42; // of the dialog's centre, as a part of the display's height

double buttonWidth(TextMeasure& measure, std::string_view label) {
    return std::max(NarrowestButton, std::ceil(measure.width(label, pushButtonStyle())) + 2 * ButtonPadding);
}

} // namespace

std::optional<AlertLayout> alertLayout(TextMeasure& measure, const DeskPicture& picture) {
    if (!picture.permissionDialog || picture.permissionDialog->display >= picture.displays.size()) {
        return std::nullopt;
    }
    const double textLeft = Padding + IconSide + IconGap;
    const double textWidth = Width - textLeft - Padding;
    const double messageHeight = std::ceil(measure.wrappedHeight(
        alertMessage(*picture.permissionDialog), textWidth, AlertLongestText, alertMessageStyle()));
    const double informationHeight = std::ceil(
        measure.wrappedHeight(AlertInformation, textWidth, AlertLongestText, alertInformationStyle()));
    const double textsHeight = messageHeight + TextGap + informationHeight;
    const double titleBarHeight = picture.permissionDialog->titleBarHeight;
    const double contentTop = titleBarHeight + ContentTop;
    const double buttonTop = contentTop + std::max(IconSide, textsHeight) + ButtonsGap;
    const double height = buttonTop + PushButtonHeight + Padding;

    const Rect& display = picture.displays[picture.permissionDialog->display].bounds;
    AlertLayout result;
    result.frame = {std::round(display.minX() + (display.width() - Width) / 2),
                    std::round(display.minY() + display.height() * HeightOnDisplay - height / 2), Width,
                    height};
    const Point corner = result.frame.origin;
    result.titleBar = {corner.x, corner.y, Width, titleBarHeight};
    result.icon = {corner.x + Padding, corner.y + contentTop, IconSide, IconSide};
    result.message = {corner.x + textLeft, corner.y + contentTop, textWidth, messageHeight};
    result.information = {corner.x + textLeft, result.message.maxY() + TextGap, textWidth, informationHeight};
    const double denyWidth = buttonWidth(measure, DenyLabel);
    result.deny = {result.frame.maxX() - Padding - denyWidth, corner.y + buttonTop, denyWidth,
                   PushButtonHeight};
    const double openWidth = buttonWidth(measure, OpenSystemSettingsLabel);
    result.openSystemSettings = {result.deny.minX() - ButtonSpacing - openWidth, corner.y + buttonTop,
                                 openWidth, PushButtonHeight};
    return result;
}

std::string alertMessage(const PermissionDialogPicture& dialog) {
    return "“" + dialog.applicationName +
           "” would like to control this computer using accessibility features.";
}

TextStyle alertMessageStyle() { return {.size = 13, .weight = FontWeight::semibold}; }

TextStyle alertInformationStyle() { return {.size = 12}; }

} // namespace kestrune::desk
