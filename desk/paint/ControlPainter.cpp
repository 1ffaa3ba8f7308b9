#include "desk/paint/ControlPainter.h"

#include "desk/paint/Shapes.h"
#include "desk/paint/SoftShadow.h"

namespace kestrune::desk {
namespace {

Point centerOf(const Rect& rect) { return {rect.minX() + rect.width() / 2, rect.minY() + rect.height() / 2}; }

void strokeLine(cairo_t* context, Point from, Point to, double width, const Color& color) {
    const SavedState saved{context};
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_width(context, width);
    cairo_move_to(context, from.x, from.y);
    cairo_line_to(context, to.x, to.y);
    setColor(context, color);
    cairo_stroke(context);
}

} // namespace

TextStyle pushButtonStyle() {
    return {.size = 13, .weight = FontWeight::medium, .alignment = TextAlignment::center};
}

void paintPushButton(const Canvas& canvas, const Rect& area, std::string_view label, PushButtonState state) {
    constexpr double Radius = 6;
    const SystemColors& colors = canvas.palette.system;
    const Rect shadow{area.minX(), area.minY() + 0.75, area.width(), area.height()};
    paintSoftShadow(canvas.context, shadow, 2, rgb(0x000000, 0.16),
                    [&](cairo_t* mask) { addRoundedRectangle(mask, shadow, Radius); });
    const Color face = state.isDefault ? canvas.palette.accent : colors.buttonFace;
    addRoundedRectangle(canvas.context, area, Radius);
    fillWithVerticalGradient(canvas.context, area.minY(), area.maxY(),
                             {mix(face, rgb(0xFFFFFF), 0.08), face});
    strokeRoundedRectangle(canvas.context, area, Radius, 0.5, colors.buttonEdge);
    if (state.isPressed) {
        const Color shade = state.isDefault ? rgb(0x000000, 0.18) : colors.pressedShade;
        fillRoundedRectangle(canvas.context, area, Radius, shade);
    }
    TextStyle style = pushButtonStyle();
    style.color = state.isDefault ? rgb(0xFFFFFF) : colors.text;
    canvas.text.paint(label, centerOf(area), style);
}

void paintSwitch(const Canvas& canvas, const Rect& area, bool isOn, bool isPressed) {
    const SystemColors& colors = canvas.palette.system;
    const double radius = area.height() / 2;
    fillRoundedRectangle(canvas.context, area, radius, isOn ? canvas.palette.accent : colors.switchTrack);
    strokeRoundedRectangle(canvas.context, area, radius, 0.5, colors.buttonEdge);
    if (isPressed) {
        fillRoundedRectangle(canvas.context, area, radius, colors.pressedShade);
    }
    constexpr double Gap = 1.25;
    const double knobRadius = radius - Gap;
    const Point knob{isOn ? area.maxX() - radius : area.minX() + radius, area.minY() + radius};
    const Rect shadow{knob.x - knobRadius, knob.y - knobRadius + 0.75, 2 * knobRadius, 2 * knobRadius};
    paintSoftShadow(canvas.context, shadow, 2, rgb(0x000000, 0.30),
                    [&](cairo_t* mask) { addRoundedRectangle(mask, shadow, knobRadius); });
    fillCircle(canvas.context, knob, knobRadius, rgb(0xFFFFFF));
}

void paintWindowButtons(const Canvas& canvas, const Rect& close, bool isPressed) {
    constexpr double Distance = 20; // from centre to centre
    const SystemColors& colors = canvas.palette.system;
    const double radius = WindowButtonSide / 2;
    const Point center = centerOf(close);
    const Color red = rgb(0xFF5F57);
    fillCircle(canvas.context, center, radius, isPressed ? mix(red, rgb(0x000000), 0.25) : red);
    strokeRoundedRectangle(canvas.context, close, radius, 0.5, rgb(0x000000, 0.16));
    if (isPressed) {
        constexpr double Arm = 2.4;
        const Color cross = rgb(0x000000, 0.6);
        strokeLine(canvas.context, {center.x - Arm, center.y - Arm}, {center.x + Arm, center.y + Arm}, 1.2,
                   cross);
        strokeLine(canvas.context, {center.x - Arm, center.y + Arm}, {center.x + Arm, center.y - Arm}, 1.2,
                   cross);
    }
    for (const double steps : {1.0, 2.0}) {
        fillCircle(canvas.context, {center.x + steps * Distance, center.y}, radius, colors.windowButton);
    }
}

void paintListButton(const Canvas& canvas, const Rect& area, ListButton button, bool isEnabled,
                     bool isPressed) {
    constexpr double Arm = 4.5;
    const SystemColors& colors = canvas.palette.system;
    if (isPressed) {
        fillRoundedRectangle(canvas.context, area, 4, colors.pressedShade);
    }
    const Point center = centerOf(area);
    const Color color = isEnabled ? colors.text : colors.disabledText;
    strokeLine(canvas.context, {center.x - Arm, center.y}, {center.x + Arm, center.y}, 1.4, color);
    if (button == ListButton::add) {
        strokeLine(canvas.context, {center.x, center.y - Arm}, {center.x, center.y + Arm}, 1.4, color);
    }
}

} // namespace kestrune::desk
