#include "desk/paint/DisplayPainter.h"

#include "desk/paint/MenuBarLayout.h"
#include "desk/paint/Shapes.h"
#include "desk/paint/SoftShadow.h"
#include "desk/paint/Wallpaper.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

namespace kestrune::desk {
namespace {

constexpr double CaptionPadding = 9;
constexpr double CaptionGap = 7;
constexpr std::string_view BadgeText = "Pinned";
constexpr double BadgeTextStart = 1.0; // as a part of the badge's height

Rect offsetBy(const Rect& rect, double distance) {
    return {rect.minX(), rect.minY() + distance, rect.width(), rect.height()};
}

void clipToScreen(cairo_t* context, const DisplayPlace& place) {
    addRoundedRectangle(context, place.screen, place.screenCornerRadius);
    cairo_clip(context);
}

std::string lengthText(double points) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.7g", points);
    return text.data();
}

std::string sizeText(const Rect& bounds) {
    return lengthText(bounds.width()) + " × " + lengthText(bounds.height());
}

TextStyle nameStyle(const Canvas& canvas, double height) {
    return {.size = height * 0.52, .weight = FontWeight::semibold, .color = canvas.palette.captionText};
}

TextStyle sizeStyle(const Canvas& canvas, double height) {
    return {.size = height * 0.50, .color = canvas.palette.captionDetail, .tabularNumbers = true};
}

TextStyle badgeStyle(double height) {
    return {.size = height * 0.50, .weight = FontWeight::semibold, .color = rgb(0xFFFFFF)};
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

Rect loneBadge(const DisplayPlace& place) {
    const double side = std::min({18.0, place.screen.width() * 0.7, place.screen.height() * 0.7});
    return {place.screen.minX() + (place.screen.width() - side) / 2,
            place.screen.minY() + (place.screen.height() - side) / 2, side, side};
}

void paintNameAndSize(const Canvas& canvas, const Rect& area, bool showsSize, const DisplayPicture& display) {
    const double height = area.height();
    const double middle = area.minY() + height / 2;
    const double left = area.minX() + CaptionPadding;
    fillRoundedRectangle(canvas.context, area, height, canvas.palette.caption);
    TextStyle style = nameStyle(canvas, height);
    if (!showsSize) {
        // One more than the room between the paddings, against rounding in the measured width.
        style.maximumWidth = std::max(0.0, area.width() - 2 * CaptionPadding) + 1;
    }
    const double nameWidth = canvas.text.paint(display.name, {left, middle}, style);
    if (showsSize) {
        canvas.text.paint(sizeText(display.bounds), {left + nameWidth + CaptionGap, middle},
                          sizeStyle(canvas, height));
    }
}

void paintBadge(const Canvas& canvas, const Rect& area) {
    const double height = area.height();
    if (height < 2) {
        return; // Too small to see; the pin's transformation would come close to a singular one.
    }
    const double middle = area.minY() + height / 2;
    const bool hasWord = area.width() > height;
    fillRoundedRectangle(canvas.context, area, height, canvas.palette.accent);
    paintPin(canvas.context, {area.minX() + height * (hasWord ? 0.54 : 0.5), middle}, height * 0.54);
    if (hasWord) {
        canvas.text.paint(BadgeText, {area.minX() + height * BadgeTextStart, middle}, badgeStyle(height));
    }
}

} // namespace

void paintHousingShadow(cairo_t* context, const Palette& palette, const DisplayPlace& place) {
    const double depth = std::min(1.0, place.slot.height() / 160);
    const auto paintShadow = [&](double drop, double blur, double strength) {
        const Rect shape = offsetBy(place.frame, drop * depth);
        paintSoftShadow(context, shape, blur * depth,
                        palette.displayShadow.withAlpha(palette.displayShadow.alpha * strength),
                        [&](cairo_t* mask) { addRoundedRectangle(mask, shape, place.cornerRadius); });
    };
    paintShadow(14, 34, 0.75);
    paintShadow(2, 7, 0.6);
}

void paintHousing(cairo_t* context, const Palette& palette, const DisplayPlace& place,
                  std::size_t wallpaper) {
    fillRoundedRectangle(context, place.frame, place.cornerRadius, palette.bezel);
    strokeRoundedRectangle(context, place.frame, place.cornerRadius, 1, palette.bezelHighlight);

    const SavedState saved{context};
    clipToScreen(context, place);
    paintWallpaper(context, place.screen, wallpaper);
    setColor(context, palette.wallpaperShade);
    cairo_paint(context);
}

CaptionPlace captionPlace(const Canvas& canvas, const DisplayPlace& place, double scale,
                          const DisplayPicture& display) {
    const Rect menuBar = menuBarArea(place, scale);
    const bool isSmall = place.screen.height() < 150;
    const double height = isSmall ? 18 : 24;
    const double margin = isSmall ? 6 : 12;
    const Rect area{place.screen.minX() + margin, menuBar.maxY() + margin, place.screen.width() - 2 * margin,
                    place.screen.maxY() - menuBar.maxY() - 2 * margin};
    constexpr double NarrowestScreen = 70;
    if (place.screen.width() < NarrowestScreen || area.height() < height) {
        return {.caption = std::nullopt,
                .badge = display.pinned ? std::optional{loneBadge(place)} : std::nullopt};
    }
    constexpr double BadgeGap = 6;
    const double padding = 2 * CaptionPadding;
    const double nameWidth = canvas.text.width(display.name, nameStyle(canvas, height)) + padding;
    const double sizeWidth =
        canvas.text.width(sizeText(display.bounds), sizeStyle(canvas, height)) + CaptionGap;
    const double wordBadgeWidth =
        canvas.text.width(BadgeText, badgeStyle(height)) + height * BadgeTextStart + CaptionPadding;

    // Where room runs out, first the badge's word goes, then the size, and then the name is shortened.
    double badgeRoom = display.pinned ? BadgeGap + wordBadgeWidth : 0;
    if (display.pinned && nameWidth + sizeWidth + badgeRoom > area.width()) {
        badgeRoom = BadgeGap + height;
    }
    CaptionPlace result;
    result.showsSize = nameWidth + sizeWidth + badgeRoom <= area.width();
    const double wanted = nameWidth + (result.showsSize ? sizeWidth : 0);
    result.caption = Rect{area.minX(), area.minY(), std::min(wanted, area.width() - badgeRoom), height};
    if (display.pinned) {
        result.badge = Rect{result.caption->maxX() + BadgeGap, area.minY(), badgeRoom - BadgeGap, height};
    }
    return result;
}

void paintCaption(const Canvas& canvas, const CaptionPlace& place, const DisplayPicture& display) {
    if (place.caption) {
        paintNameAndSize(canvas, *place.caption, place.showsSize, display);
    }
    if (place.badge) {
        paintBadge(canvas, *place.badge);
    }
}

} // namespace kestrune::desk
