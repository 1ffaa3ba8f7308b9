// Pictures at 100 %, and a look at their pixels by where these are on the displays.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/toolkit/RectMath.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace kestrune::desk {

// The surroundings of what is open in the picture, or of the pointer. Places and rectangles are in global
// display coordinates.
class CloseUp {
public:
    explicit CloseUp(const DeskPicture& picture, double scale = 1)
        : CloseUp(picture, middleOf(picture), scale) {}

    CloseUp(DeskPicture picture, Point middle, double scale = 1)
        : picture_(withPartShown(std::move(picture), middle)),
          place_(*DeskLayout::of(picture_, TestWindow).placeContaining(middle)),
          scale_(scale),
          painted_(painter(), picture_, TestWindow, scale) {}

    Pixel at(Point place) const {
        const Point point = place_.toWindow(place);
        return painted_.at({point.x * scale_, point.y * scale_});
    }

    int count(const Rect& area, const std::function<bool(Pixel)>& test) const {
        const Rect seen = place_.toWindow(area);
        return painted_.count(
            {seen.minX() * scale_, seen.minY() * scale_, seen.width() * scale_, seen.height() * scale_},
            test);
    }

    int darkest(const Rect& area) const {
        int value = 255;
        count(area, [&](Pixel pixel) {
            value = std::min(value, pixel.red);
            return false;
        });
        return value;
    }

    // The smallest rectangle that holds all pixels in which two pictures of one place differ; absent when
    // there are none.
    friend std::optional<Rect> differenceOf(const CloseUp& first, const CloseUp& second) {
        const auto pixels = differenceOf(first.painted_, second.painted_);
        if (!pixels) {
            return std::nullopt;
        }
        const Point corner =
            first.place_.toGlobal({pixels->minX() / first.scale_, pixels->minY() / first.scale_});
        return Rect{corner.x, corner.y, pixels->width() / first.scale_, pixels->height() / first.scale_};
    }

private:
    // One for all, which paints the displays once for all places.
    static DeskPainter& painter() {
        static DeskPainter painter;
        return painter;
    }

    static Point middleOf(const DeskPicture& picture) {
        const auto open = DeskHitTest().openParts(picture);
        return open ? centerOf(*open) : picture.pointer;
    }

    static DeskPicture withPartShown(DeskPicture picture, Point middle) {
        picture.shown = Rect{middle.x, middle.y, 0, 0};
        return picture;
    }

    DeskPicture picture_;
    DisplayPlace place_;
    double scale_;
    PaintedPicture painted_;
};

} // namespace kestrune::desk
