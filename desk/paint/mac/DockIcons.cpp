#include "desk/paint/mac/DockIcons.h"

#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/Shapes.h"

#include <array>
#include <numbers>

namespace kestrune::desk {
namespace {

// Glyphs are drawn in the square from (-1, -1) to (1, 1), in white unless they set another colour.

void paintTarget(cairo_t* context) {
    addCircle(context, {0, 0}, 0.46);
    cairo_set_line_width(context, 0.17);
    cairo_stroke(context);
    addCircle(context, {0, 0}, 0.15);
    cairo_fill(context);
}

void paintSunrise(cairo_t* context) {
    cairo_arc(context, 0, 0.16, 0.42, std::numbers::pi, 2 * std::numbers::pi);
    cairo_fill(context);
    addRoundedRectangle(context, {-0.58, 0.28, 1.16, 0.14}, 0.07);
    cairo_fill(context);
}

void paintWaves(cairo_t* context) {
    cairo_set_line_width(context, 0.16);
    for (const double y : {-0.26, 0.0, 0.26}) {
        cairo_move_to(context, -0.55, y);
        cairo_curve_to(context, -0.28, y - 0.28, -0.24, y - 0.18, 0, y);
        cairo_curve_to(context, 0.24, y + 0.18, 0.28, y + 0.28, 0.55, y);
    }
    cairo_stroke(context);
}

void paintColumns(cairo_t* context) {
    addRoundedRectangle(context, {-0.50, 0.02, 0.24, 0.46}, 0.08);
    addRoundedRectangle(context, {-0.12, -0.24, 0.24, 0.72}, 0.08);
    addRoundedRectangle(context, {0.26, -0.50, 0.24, 0.98}, 0.08);
    cairo_fill(context);
}

void paintDiamonds(cairo_t* context) {
    cairo_rotate(context, std::numbers::pi / 4);
    addRoundedRectangle(context, {-0.40, -0.40, 0.80, 0.80}, 0.14);
    cairo_set_line_width(context, 0.16);
    cairo_stroke(context);
    addRoundedRectangle(context, {-0.14, -0.14, 0.28, 0.28}, 0.05);
    cairo_fill(context);
}

void paintTiles(cairo_t* context) {
    for (const double x : {-0.48, 0.08}) {
        for (const double y : {-0.48, 0.08}) {
            addRoundedRectangle(context, {x, y, 0.40, 0.40}, 0.10);
        }
    }
    cairo_fill(context);
}

void paintLeaf(cairo_t* context) {
    cairo_move_to(context, -0.46, 0.46);
    cairo_curve_to(context, -0.62, -0.30, -0.10, -0.56, 0.50, -0.50);
    cairo_curve_to(context, 0.56, 0.10, 0.30, 0.62, -0.46, 0.46);
    cairo_fill(context);
}

void paintLines(cairo_t* context) {
    setColor(context, rgb(0x6C6A78));
    addRoundedRectangle(context, {-0.46, -0.42, 0.92, 0.15}, 0.07);
    addRoundedRectangle(context, {-0.46, -0.08, 0.92, 0.15}, 0.07);
    addRoundedRectangle(context, {-0.46, 0.26, 0.56, 0.15}, 0.07);
    cairo_fill(context);
}

struct Icon {
    Color top;
    Color bottom;
    void (*paintGlyph)(cairo_t*);
};

constexpr std::array<Icon, DockIconCount> Icons{{
    {rgb(0x6F9BE8), rgb(0x3A63C2), paintTarget},
    {rgb(0xFBC46A), rgb(0xE88B2E), paintSunrise},
    {rgb(0x5CC7C0), rgb(0x1F8A8E), paintWaves},
    {rgb(0xF58B78), rgb(0xD2504A), paintColumns},
    {rgb(0xA98CEB), rgb(0x6C4CC4), paintDiamonds},
    {rgb(0x7C8294), rgb(0x474C5C), paintTiles},
    {rgb(0x8FD08A), rgb(0x3E9A57), paintLeaf},
    {rgb(0xFDFCFA), rgb(0xE3E0DC), paintLines},
}};

} // namespace

void paintDockIcon(cairo_t* context, std::size_t icon, const Rect& square) {
    const double side = square.width();
    addRoundedRectangle(context, square, side * 0.25);
    fillWithVerticalGradient(context, square.minY(), square.maxY(), {Icons[icon].top, Icons[icon].bottom});
    strokeRoundedRectangle(context, square, side * 0.25, side * 0.03, rgb(0xFFFFFF, 0.22));

    const SavedState saved{context};
    cairo_translate(context, square.minX() + side / 2, square.minY() + side / 2);
    cairo_scale(context, side / 2, side / 2);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    setColor(context, rgb(0xFFFFFF, 0.96));
    Icons[icon].paintGlyph(context);
}

} // namespace kestrune::desk
