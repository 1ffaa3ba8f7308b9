#include "desk/paint/desk/DisplayPainter.h"

#include "desk/paint/mac/Wallpaper.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/SoftShadow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>
#include <string_view>

namespace kestrune::desk {
namespace {

constexpr double HighestCaption = 22;
constexpr double LowestCaption = 13;
constexpr double CaptionPart = 0.9; // of the room for it
constexpr double SizeGap = 7;
constexpr double BadgeGap = 9;
constexpr std::string_view BadgeText = "Pinned";

// As parts of the badge's height.
constexpr double BadgeTextStart = 1.0;
constexpr double BadgePadding = 0.45;

std::string lengthText(double points) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.7g", points);
    return text.data();
}

std::string sizeText(const Rect& bounds) {
    return lengthText(bounds.width()) + " × " + lengthText(bounds.height());
}

TextStyle nameStyle(double height) { return {.size = height * 0.58, .weight = FontWeight::semibold}; }

TextStyle sizeStyle(double height) { return {.size = height * 0.56, .tabularNumbers = true}; }

TextStyle badgeStyle(double height) {
    return {.size = height * 0.52, .weight = FontWeight::semibold, .color = rgb(0xFFFFFF)};
}

// A drawing pin seen from the side: head, collar and needle.
void paintPin(cairo_t* context, Point center, double height) {
    const SavedState saved{context};
    cairo_translate(context, center.x, center.y);
    cairo_rotate(context, 0.62);
    cairo_scale(context, height / 14, height / 14);
    setColor(context, rgb(0xFFFFFF));
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

void paintBadge(const Canvas& canvas, const Rect& area) {
    const double height = area.height();
    const double middle = area.minY() + height / 2;
    const bool hasWord = area.width() > height;
    fillRoundedRectangle(canvas.context, area, height, canvas.palette.accent);
    paintPin(canvas.context, {area.minX() + height * (hasWord ? 0.54 : 0.5), middle}, height * 0.54);
    if (hasWord) {
        canvas.text.paint(BadgeText, {area.minX() + height * BadgeTextStart, middle}, badgeStyle(height));
    }
}

} // namespace

void enterDisplay(cairo_t* context, const DisplayPlace& place) {
    const Rect& screen = place.screen;
    cairo_rectangle(context, screen.minX(), screen.minY(), screen.width(), screen.height());
    cairo_clip(context);
    cairo_translate(context, screen.minX(), screen.minY());
    cairo_scale(context, place.scale, place.scale);
    cairo_translate(context, -place.bounds.minX(), -place.bounds.minY());
}

void HousingPainter::paintShadow(cairo_t* context, const DisplayPlace& place, bool dark) {
    constexpr double Blur = 26;
    constexpr double Drop = 8;
    const double depth = std::min(1.0, place.housing.height() / 160);
    const Rect shape = movedBy(place.housing, {0, Drop * depth});
    shadow_.paint(context, enlargedBy(shape, 1.25 * Blur), {place.bounds.size, place.scale, 0, dark},
                  [&](cairo_t* sprite) {
                      paintSoftShadow(sprite, shape, Blur * depth, paletteFor(dark).displayShadow,
                                      [&](cairo_t* mask) {
                                          addRoundedRectangle(mask, shape, place.housingCornerRadius);
                                      });
                  });
}

void HousingPainter::paint(cairo_t* context, const DisplayPlace& place, std::size_t wallpaper, bool dark) {
    const Palette& palette = paletteFor(dark);
    housing_.paint(context, place.housing, {place.bounds.size, place.scale, wallpaper, dark},
                   [&](cairo_t* sprite) {
                       fillRoundedRectangle(sprite, place.housing, place.housingCornerRadius, palette.bezel);
                       strokeRoundedRectangle(sprite, place.housing, place.housingCornerRadius, 1,
                                              palette.bezelHighlight);
                       enterDisplay(sprite, place);
                       paintWallpaper(sprite, place.bounds, wallpaper);
                       setColor(sprite, palette.wallpaperShade);
                       cairo_paint(sprite);
                   });
}

void paintScreenCorners(cairo_t* context, const Palette& palette, const DisplayPlace& place) {
    const double radius = place.screenCornerRadius;
    const Rect& screen = place.screen;
    const std::array<Point, 4> corners{{{screen.minX(), screen.minY()},
                                        {screen.maxX(), screen.minY()},
                                        {screen.maxX(), screen.maxY()},
                                        {screen.minX(), screen.maxY()}}};
    const Point middle = centerOf(screen);
    setColor(context, palette.bezel);
    double angle = std::numbers::pi;
    for (const Point& corner : corners) {
        const Point center{corner.x + std::copysign(radius, middle.x - corner.x),
                           corner.y + std::copysign(radius, middle.y - corner.y)};
        cairo_move_to(context, corner.x, corner.y);
        cairo_arc(context, center.x, center.y, radius, angle, angle + std::numbers::pi / 2);
        cairo_close_path(context);
        cairo_fill(context);
        angle += std::numbers::pi / 2;
    }
}

std::optional<CaptionPlace> captionPlace(TextPainter& text, const DisplayPlace& place,
                                         const DisplayPicture& display, const Rect& stage) {
    const double height = std::min(HighestCaption, place.captionRoom * CaptionPart);
    const double left = std::max(place.housing.minX(), stage.minX());
    const double available = std::min(place.housing.maxX(), stage.maxX()) - left;
    const double top = place.housing.maxY() + (place.captionRoom - height) / 2 + 2;
    if (height < LowestCaption || available < 4 * height || top + height > stage.maxY()) {
        return std::nullopt;
    }
    const double nameWidth = text.width(display.name, nameStyle(height));
    if (available < place.housing.width() && available < nameWidth) {
        return std::nullopt;
    }
    double sizeRoom = SizeGap + text.width(sizeText(display.bounds), sizeStyle(height));
    const double wordWidth =
        text.width(BadgeText, badgeStyle(height)) + height * (BadgeTextStart + BadgePadding);
    double badgeRoom = display.pinned ? BadgeGap + wordWidth : 0;
    // Where room runs out, first the badge's word goes, then the size, and then the name is shortened.
    if (display.pinned && nameWidth + sizeRoom + badgeRoom > available) {
        badgeRoom = BadgeGap + height;
    }
    if (nameWidth + sizeRoom + badgeRoom > available) {
        sizeRoom = 0;
    }
    const double shownNameWidth = std::min(nameWidth, available - sizeRoom - badgeRoom);
    const double width = shownNameWidth + sizeRoom + badgeRoom;
    double x = left + (available - width) / 2;
    CaptionPlace result{.name = {x, top, shownNameWidth, height}, .size = {}, .badge = {}};
    x = result.name.maxX();
    if (sizeRoom > 0) {
        result.size = Rect{x + SizeGap, top, sizeRoom - SizeGap, height};
        x = result.size->maxX();
    }
    if (display.pinned) {
        result.badge = Rect{x + BadgeGap, top, badgeRoom - BadgeGap, height};
    }
    return result;
}

void paintCaption(const Canvas& canvas, const CaptionPlace& place, const DisplayPicture& display) {
    const double height = place.name.height();
    const double middle = place.name.minY() + height / 2;
    TextStyle style = nameStyle(height);
    style.color = canvas.palette.primaryText;
    style.maximumWidth = place.name.width() + 1; // Against rounding in the measured width.
    canvas.text.paint(display.name, {place.name.minX(), middle}, style);
    if (place.size) {
        style = sizeStyle(height);
        style.color = canvas.palette.secondaryText;
        canvas.text.paint(sizeText(display.bounds), {place.size->minX(), middle}, style);
    }
    if (place.badge) {
        paintBadge(canvas, *place.badge);
    }
}

} // namespace kestrune::desk
