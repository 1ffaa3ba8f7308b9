#include "desk/paint/mac/AlertPainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/ControlPainter.h"

namespace kestrune::desk {

void paintAlert(const Canvas& canvas, ImageStore& images, const AlertLayout& layout,
                const PermissionDialogPicture& dialog, const std::optional<DeskTarget>& pressed) {
    const SystemColors& colors = canvas.palette.system;
    canvas.text.paint(AlertTitle,
                      {layout.titleBar.minX() + layout.titleBar.width() / 2,
                       layout.titleBar.minY() + layout.titleBar.height() / 2},
                      {.size = 13,
                       .weight = FontWeight::semibold,
                       .color = colors.text,
                       .alignment = TextAlignment::center});
    paintApplicationIcon(canvas, images, dialog.iconPath, layout.icon);

    TextStyle message = alertMessageStyle();
    message.color = colors.text;
    canvas.text.paintWrapped(alertMessage(dialog), layout.message.origin, layout.message.width(),
                             AlertLongestText, message);
    TextStyle information = alertInformationStyle();
    information.color = colors.text;
    canvas.text.paintWrapped(AlertInformation, layout.information.origin, layout.information.width(),
                             AlertLongestText, information);

    const auto isPressed = [&](DialogButton button) {
        return pressed == DeskTarget{DialogButtonTarget{button}};
    };
    paintPushButton(canvas, layout.openSystemSettings, OpenSystemSettingsLabel,
                    {.isPressed = isPressed(DialogButton::openSystemSettings)});
    paintPushButton(canvas, layout.deny, DenyLabel,
                    {.isDefault = true, .isPressed = isPressed(DialogButton::deny)});
}

} // namespace kestrune::desk
