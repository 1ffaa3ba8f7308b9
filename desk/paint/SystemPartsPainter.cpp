#include "desk/paint/SystemPartsPainter.h"

#include "desk/paint/AlertPainter.h"
#include "desk/paint/MailPainter.h"
#include "desk/paint/MenuPainter.h"
#include "desk/paint/SettingsPanePainter.h"
#include "desk/paint/ToolTipPainter.h"
#include "desk/paint/WindowPainter.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace kestrune::desk {
namespace {

// A sprite has a context of its own to paint text into.
void paintInto(cairo_t* sprite, const Palette& palette, const std::function<void(const Canvas&)>& paint) {
    TextPainter text{sprite};
    paint(Canvas{sprite, text, palette});
}

template <typename... Targets>
std::optional<DeskTarget> pressedAmong(const std::optional<DeskTarget>& pressed) {
    const bool isAmong = pressed && (std::holds_alternative<Targets>(*pressed) || ...);
    return isAmong ? pressed : std::nullopt;
}

} // namespace

template <typename Picture, typename Layout>
void SystemPartsPainter::Part<Picture, Layout>::paint(
    const Canvas& canvas, const Panel& shown, Content<Picture, Layout> shownContent,
    const std::function<void(const Canvas&)>& paintContent) {
    panel.paint(canvas.context, panelExtent(shown.frame, shown.style), shown, [&](cairo_t* sprite) {
        paintInto(sprite, canvas.palette,
                  [&](const Canvas& own) { paintPanel(own, shown.frame, shown.style); });
    });
    content.paint(canvas.context, shown.frame, std::move(shownContent),
                  [&](cairo_t* sprite) { paintInto(sprite, canvas.palette, paintContent); });
}

template <typename Picture, typename Layout>
void SystemPartsPainter::Part<Picture, Layout>::forget() {
    panel.forget();
    content.forget();
}

void SystemPartsPainter::paint(const Canvas& canvas, TextMeasure& measure, ImageStore& images,
                               const DeskLayout& layout, const DeskPicture& picture, Size window) {
    forgetClosedWindows(picture);
    paintWindows(canvas, layout, picture, window, WindowDepth::behindSystemWindows);
    paintPane(canvas, images, layout, picture, window);
    paintOpenMail(canvas, layout, picture, window);
    paintWindows(canvas, layout, picture, window, WindowDepth::beforePane);
    paintDialog(canvas, measure, images, layout, picture, window);
    paintWindows(canvas, layout, picture, window, WindowDepth::beforeDialog);
    paintTip(canvas, measure, layout, picture, window);
    paintOpenMenu(canvas, measure, layout, picture, window);
}

void SystemPartsPainter::forgetClosedWindows(const DeskPicture& picture) {
    std::erase_if(windows_, [&picture](const auto& painted) {
        return std::none_of(picture.windows.begin(), picture.windows.end(),
                            [&painted](const WindowPicture& shown) { return shown.number == painted.first; });
    });
}

void SystemPartsPainter::paintWindows(const Canvas& canvas, const DeskLayout& layout,
                                      const DeskPicture& picture, Size window, WindowDepth depth) {
    for (auto shown = picture.windows.rbegin(); shown != picture.windows.rend(); ++shown) {
        if (shown->depth != depth) {
            continue;
        }
        const WindowLayout place = windowLayout(layout, *shown, window);
        windows_[shown->number].paint(
            canvas, {place.frame, applicationWindowStyle(canvas.palette, shown->isKey), picture.dark},
            {*shown, place, std::nullopt, picture.dark},
            [&](const Canvas& own) { paintWindow(own, place, *shown); });
    }
}

void SystemPartsPainter::paintPane(const Canvas& canvas, ImageStore& images, const DeskLayout& layout,
                                   const DeskPicture& picture, Size window) {
    const auto place = settingsPaneLayout(layout, picture, window);
    if (!place) {
        pane_.forget();
        return;
    }
    const SettingsPanePicture& pane = *picture.settingsPane;
    const auto pressed = pressedAmong<PaneSwitchTarget, PaneCloseTarget, PaneRemoveTarget>(picture.pressed);
    pane_.paint(canvas, {place->frame, windowPanelStyle(canvas.palette), picture.dark},
                {pane, *place, pressed, picture.dark},
                [&](const Canvas& own) { paintSettingsPane(own, images, *place, pane, pressed); });
}

void SystemPartsPainter::paintOpenMail(const Canvas& canvas, const DeskLayout& layout,
                                       const DeskPicture& picture, Size window) {
    const auto place = mailLayout(layout, picture, window);
    if (!place) {
        mail_.forget();
        return;
    }
    const auto pressed = pressedAmong<MailCloseTarget>(picture.pressed);
    mail_.paint(canvas, {place->frame, windowPanelStyle(canvas.palette), picture.dark},
                {*picture.mail, *place, pressed, picture.dark},
                [&](const Canvas& own) { paintMail(own, *place, *picture.mail, pressed); });
}

void SystemPartsPainter::paintDialog(const Canvas& canvas, TextMeasure& measure, ImageStore& images,
                                     const DeskLayout& layout, const DeskPicture& picture, Size window) {
    const auto place = alertLayout(measure, layout, picture, window);
    if (!place) {
        dialog_.forget();
        return;
    }
    const PermissionDialogPicture& dialog = *picture.permissionDialog;
    const auto pressed = pressedAmong<DialogButtonTarget>(picture.pressed);
    dialog_.paint(canvas, {place->frame, windowPanelStyle(canvas.palette), picture.dark},
                  {dialog, *place, pressed, picture.dark},
                  [&](const Canvas& own) { paintAlert(own, images, *place, dialog, pressed); });
}

void SystemPartsPainter::paintTip(const Canvas& canvas, TextMeasure& measure, const DeskLayout& layout,
                                  const DeskPicture& picture, Size window) {
    const auto area = toolTipArea(measure, layout, picture, window);
    if (!area) {
        toolTip_.forget();
        return;
    }
    toolTip_.paint(canvas, {*area, toolTipPanelStyle(canvas.palette), picture.dark},
                   {*picture.toolTip, *area, std::nullopt, picture.dark},
                   [&](const Canvas& own) { paintToolTip(own, *area, picture.toolTip->text); });
}

void SystemPartsPainter::paintOpenMenu(const Canvas& canvas, TextMeasure& measure, const DeskLayout& layout,
                                       const DeskPicture& picture, Size window) {
    const auto place = menuLayout(measure, layout, picture, window);
    if (!place) {
        menu_.forget();
        return;
    }
    menu_.paint(canvas, {place->panel, menuPanelStyle(canvas.palette), picture.dark},
                {*picture.menu, *place, std::nullopt, picture.dark},
                [&](const Canvas& own) { paintMenu(own, *place, *picture.menu); });
}

} // namespace kestrune::desk
