#include "desk/paint/desk/HeaderPainter.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <string_view>

namespace kestrune::desk {
namespace {

constexpr double Margin = 28;

struct Pill {
    std::string_view text;
    Color color;
};

Pill guardPill(const Palette& palette, GuardState guard) {
    switch (guard) {
    case GuardState::on:
        return {"Guard on", palette.positive};
    case GuardState::off:
        return {"Guard off", palette.inactive};
    case GuardState::noPermission:
        return {"No permission", palette.caution};
    }
    return {};
}

// Gives the pill's trailing edge.
double paintPill(const Canvas& canvas, const Pill& pill, double left, double middle) {
    constexpr double Height = 24;
    const TextStyle style{
        .size = 12, .weight = FontWeight::medium, .color = mix(pill.color, canvas.palette.primaryText, 0.35)};
    const Rect area{left, middle - Height / 2, canvas.text.width(pill.text, style) + 34, Height};
    fillRoundedRectangle(canvas.context, area, Height, pill.color.withAlpha(0.14));
    fillCircle(canvas.context, {left + 14, middle}, 3.5, pill.color);
    canvas.text.paint(pill.text, {left + 23, middle}, style);
    return area.maxX();
}

// "Dock pinned to <name>" at the trailing end, as long as there is room for it after `left`.
void paintPinnedName(const Canvas& canvas, const DeskPicture& picture, double left, Point trailing) {
    const auto pinned = std::find_if(picture.displays.begin(), picture.displays.end(),
                                     [](const DisplayPicture& display) { return display.pinned; });
    if (pinned == picture.displays.end()) {
        return;
    }
    const TextStyle nameStyle{.size = 13,
                              .weight = FontWeight::medium,
                              .color = canvas.palette.primaryText,
                              .alignment = TextAlignment::trailing,
                              .maximumWidth = 280};
    const TextStyle labelStyle{
        .size = 13, .color = canvas.palette.secondaryText, .alignment = TextAlignment::trailing};
    constexpr std::string_view Label = "Dock pinned to";
    const double width =
        canvas.text.width(pinned->name, nameStyle) + 5 + canvas.text.width(Label, labelStyle);
    if (trailing.x - width < left) {
        return;
    }
    const double nameWidth = canvas.text.paint(pinned->name, trailing, nameStyle);
    canvas.text.paint(Label, {trailing.x - nameWidth - 5, trailing.y}, labelStyle);
}

} // namespace

void paintHeader(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    const Rect header = layout.header();
    const double middle = header.minY() + header.height() / 2 - 2;
    const TextStyle titleStyle{
        .size = 18, .weight = FontWeight::semibold, .color = canvas.palette.primaryText};
    const double titleEnd = Margin + canvas.text.paint("Kestrune", {Margin, middle}, titleStyle);
    const double pillEnd = paintPill(canvas, guardPill(canvas.palette, picture.guard), titleEnd + 14, middle);
    paintPinnedName(canvas, picture, pillEnd + 24, {header.maxX() - Margin, middle});
    if (!picture.story.empty()) {
        canvas.text.paintParagraph(
            picture.story, layout.story(),
            {.size = 21, .weight = FontWeight::medium, .color = canvas.palette.primaryText});
    }
}

} // namespace kestrune::desk
