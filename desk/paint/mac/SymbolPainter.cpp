#include "desk/paint/mac/SymbolPainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

namespace kestrune::desk {
namespace {

// A symbol is drawn around the origin, in units of its font's size with the scale applied. `line` is the
// width of its lines.
struct Drawing {
    std::string_view name;
    Size size;
    void (*draw)(cairo_t* context, double line);
};

// A circle is somewhat larger than its font, so that it looks as high as a line of text.
constexpr double CircleDiameter = 1.17;
constexpr double CircleRadius = CircleDiameter / 2;
constexpr Size CircleSize{CircleDiameter, CircleDiameter};
constexpr Size ScreenSize{1.40, 1.06};
constexpr Size SignSize{0.74, 0.74};
constexpr Size PinSize{1.3, 1};

// Fills the symbol's disc and takes what `addSign` adds, as a line of `width`, out of it.
void fillDiscWithout(cairo_t* context, double width, void (*addSign)(cairo_t*)) {
    addCircle(context, {0, 0}, CircleRadius);
    cairo_fill(context);
    cairo_set_operator(context, CAIRO_OPERATOR_DEST_OUT);
    cairo_new_path(context);
    addSign(context);
    strokeRound(context, width);
}

void drawScreenWithDock(cairo_t* context, double line) {
    const Rect edge{-ScreenSize.width / 2 + line / 2, -ScreenSize.height / 2 + line / 2,
                    ScreenSize.width - line, ScreenSize.height - line};
    addRoundedRectangle(context, edge, 0.17);
    cairo_set_line_width(context, line);
    cairo_stroke(context);
    const double dockHeight = 0.15 + 0.4 * line;
    const double bottom = edge.maxY() - line / 2 - 0.075;
    addRoundedRectangle(context, {-0.40, bottom - dockHeight, 0.80, dockHeight}, 0.075);
    cairo_fill(context);
}

void addTwo(cairo_t* context) {
    constexpr double Radius = 0.155;
    constexpr double Left = -0.165;
    constexpr double Right = 0.175;
    constexpr double Bottom = 0.285;
    constexpr Point Bowl{0.0, -0.13};
    constexpr double Turn = std::numbers::pi;
    cairo_arc(context, Bowl.x, Bowl.y, Radius, -0.92 * Turn, 0.16 * Turn);
    cairo_curve_to(context, Bowl.x + 0.085, Bowl.y + 0.17, Left + 0.10, Bottom - 0.13, Left, Bottom);
    cairo_line_to(context, Right, Bottom);
}

void addCheckMark(cairo_t* context) {
    cairo_move_to(context, -0.225, 0.035);
    cairo_line_to(context, -0.065, 0.215);
    cairo_line_to(context, 0.235, -0.215);
}

void drawTwoOnDisc(cairo_t* context, double line) { fillDiscWithout(context, 0.035 + 0.85 * line, addTwo); }

void drawCheckMarkOnDisc(cairo_t* context, double line) {
    fillDiscWithout(context, 0.04 + 0.85 * line, addCheckMark);
}

void drawDashedCircle(cairo_t* context, double line) {
    constexpr int Dashes = 10;
    constexpr double DashShare = 0.56; // of each step around the circle, without the round ends
    const double radius = CircleRadius - line / 2;
    const double step = 2 * std::numbers::pi / Dashes;
    for (int dash = 0; dash < Dashes; ++dash) {
        // Symmetrical about both axes, with a dash at the top.
        const double middle = -std::numbers::pi / 2 + step * dash;
        const double half = std::max(0.02, (DashShare * step - line / radius * 0.5) / 2);
        cairo_new_sub_path(context);
        cairo_arc(context, 0, 0, radius, middle - half, middle + half);
    }
    strokeRound(context, line);
}

void drawMinus(cairo_t* context, double line) {
    const double reach = (SignSize.width - line) / 2; // the ends are round
    cairo_move_to(context, -reach, 0);
    cairo_line_to(context, reach, 0);
    strokeRound(context, line);
}

void drawPlus(cairo_t* context, double line) {
    drawMinus(context, line);
    cairo_rotate(context, std::numbers::pi / 2);
    drawMinus(context, line);
}

// A drawing pin seen from the side: head, collar and needle.
void drawPin(cairo_t* context, double) {
    cairo_rotate(context, 0.62);
    cairo_scale(context, 1.0 / 14, 1.0 / 14);
    addRoundedRectangle(context, {-3.8, -7, 7.6, 2.2}, 1.1);
    cairo_move_to(context, -2.3, -5.4);
    cairo_line_to(context, 2.3, -5.4);
    cairo_line_to(context, 2.7, -1.2);
    cairo_line_to(context, -2.7, -1.2);
    cairo_close_path(context);
    addRoundedRectangle(context, {-4.6, -1.6, 9.2, 2.2}, 1.1);
    cairo_rectangle(context, -0.65, 0, 1.3, 6.6);
    cairo_fill(context);
}

// A ring with teeth.
void drawGear(cairo_t* context, double line) {
    constexpr int Teeth = 8;
    addCircle(context, {0, 0}, 0.3);
    for (int tooth = 0; tooth < Teeth; ++tooth) {
        const double angle = 2 * std::numbers::pi * tooth / Teeth;
        cairo_move_to(context, 0.4 * std::cos(angle), 0.4 * std::sin(angle));
        cairo_line_to(context, 0.54 * std::cos(angle), 0.54 * std::sin(angle));
    }
    strokeRound(context, 1.6 * line);
}

void drawHalfFilledCircle(cairo_t* context, double line) {
    addCircle(context, {0, 0}, CircleRadius - line / 2);
    cairo_set_line_width(context, line);
    cairo_stroke(context);
    cairo_arc(context, 0, 0, CircleRadius - line / 2, 0.5 * std::numbers::pi, 1.5 * std::numbers::pi);
    cairo_fill(context);
}

// A palm, and five fingers up from it.
void drawHand(cairo_t* context, double line) {
    addRoundedRectangle(context, {-0.32, -0.05, 0.64, 0.6}, 0.28);
    cairo_fill(context);
    for (const double finger : {-0.24, -0.08, 0.08, 0.24}) {
        cairo_move_to(context, finger, 0.1);
        cairo_line_to(context, finger, std::abs(finger) > 0.1 ? -0.36 : -0.48);
    }
    cairo_move_to(context, 0.2, 0.3);
    cairo_line_to(context, 0.44, 0.02);
    strokeRound(context, 1.5 * line);
}

void drawDisplay(cairo_t* context, double line) {
    addRoundedRectangle(context, {-0.6, -0.5, 1.2, 0.78}, 0.12);
    cairo_set_line_width(context, line);
    cairo_stroke(context);
    cairo_move_to(context, -0.22, 0.5);
    cairo_line_to(context, 0.22, 0.5);
    strokeRound(context, 1.5 * line);
}

void drawPaperPlane(cairo_t* context, double line) {
    cairo_move_to(context, 0.5, -0.5);
    for (const Point corner :
         {Point{-0.55, -0.08}, Point{-0.1, 0.1}, Point{0.08, 0.55}, Point{0.5, -0.5}, Point{-0.1, 0.1}}) {
        cairo_line_to(context, corner.x, corner.y);
    }
    strokeRound(context, line);
}

constexpr std::array Drawings{
    Drawing{"gearshape.fill", CircleSize, drawGear},
    Drawing{"circle.lefthalf.filled", CircleSize, drawHalfFilledCircle},
    Drawing{"hand.raised.fill", CircleSize, drawHand},
    Drawing{"display", ScreenSize, drawDisplay},
    Drawing{"paperplane", CircleSize, drawPaperPlane},
    Drawing{"dock.rectangle", ScreenSize, drawScreenWithDock},
    Drawing{"2.circle.fill", CircleSize, drawTwoOnDisc},
    Drawing{"checkmark.circle.fill", CircleSize, drawCheckMarkOnDisc},
    Drawing{"circle.dashed", CircleSize, drawDashedCircle},
    Drawing{"minus", SignSize, drawMinus},
    Drawing{"plus", SignSize, drawPlus},
    Drawing{"pin.fill", PinSize, drawPin},
};

const Drawing* drawingOf(std::string_view name) {
    const auto* const found = std::find_if(Drawings.begin(), Drawings.end(),
                                           [name](const Drawing& drawing) { return drawing.name == name; });
    return found != Drawings.end() ? found : nullptr;
}

double lineWidth(ui::FontWeight weight) {
    constexpr std::array<double, 9> Widths{0.025, 0.035, 0.055, 0.08, 0.09, 0.105, 0.12, 0.14, 0.16};
    return Widths[static_cast<std::size_t>(weight)];
}

double scaleFactor(ui::ImageScale scale) {
    constexpr std::array Factors{0.78, 1.0, 1.28};
    return Factors.at(static_cast<std::size_t>(scale));
}

} // namespace

Size symbolSize(const ui::StyledSymbol& symbol) {
    const Drawing* const drawing = drawingOf(symbol.name);
    const double unit = symbol.font.size * scaleFactor(symbol.scale);
    if (pathOfIcon(symbol.name)) {
        return {unit, unit};
    }
    return drawing ? Size{drawing->size.width * unit, drawing->size.height * unit} : Size{};
}

void paintSymbol(cairo_t* context, const ui::StyledSymbol& symbol, const Rect& frame, const Color& color) {
    const Drawing* const drawing = drawingOf(symbol.name);
    if (!drawing) {
        return;
    }
    const SavedState saved{context};
    const double unit = symbol.font.size * scaleFactor(symbol.scale);
    cairo_translate(context, frame.minX() + frame.width() / 2, frame.minY() + frame.height() / 2);
    cairo_scale(context, unit, unit);
    // What a symbol leaves out must not be taken out of what is behind it.
    cairo_push_group_with_content(context, CAIRO_CONTENT_ALPHA);
    cairo_set_source_rgba(context, 0, 0, 0, 1);
    drawing->draw(context, lineWidth(symbol.font.weight));
    const PatternHandle mask{cairo_pop_group(context)};
    setColor(context, color);
    cairo_mask(context, mask.get());
}

} // namespace kestrune::desk
