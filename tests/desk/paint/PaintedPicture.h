// Pictures for the tests of the painting, and a look at their pixels.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace kestrune::desk {

inline constexpr Size TestWindow{1200, 700};

struct Pixel {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const Pixel&, const Pixel&) = default;
};

// A painted window; locations are device pixels.
class PaintedPicture {
public:
    explicit PaintedPicture(const DeskPicture& picture, Size window = TestWindow, double scale = 1)
        : surface_(*Surface::create(window, scale)) {
        DeskPainter painter;
        paint(painter, picture, window);
    }

    // What a painter that has painted other pictures before makes of this one.
    PaintedPicture(DeskPainter& painter, const DeskPicture& picture, Size window, double scale = 1)
        : surface_(*Surface::create(window, scale)) {
        paint(painter, picture, window);
    }

    const Surface& surface() const { return surface_; }
    int width() const { return surface_.pixelWidth(); }
    int height() const { return surface_.pixelHeight(); }

    // As the surface holds it: alpha, red, green and blue from the highest byte down.
    std::uint32_t valueAt(int x, int y) const {
        return values_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width()) +
                       static_cast<std::size_t>(x)];
    }

    Pixel at(int x, int y) const {
        const std::uint32_t value = valueAt(x, y);
        return {static_cast<int>(value >> 16 & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                static_cast<int>(value & 0xFF)};
    }

    Pixel at(Point point) const {
        return at(static_cast<int>(std::floor(point.x)), static_cast<int>(std::floor(point.y)));
    }

    // How many pixels in the area, which is cut to the window, pass the test.
    int count(const Rect& area, const std::function<bool(Pixel)>& test) const {
        int result = 0;
        for (int y = std::max(0, static_cast<int>(area.minY()));
             y < std::min(height(), static_cast<int>(area.maxY())); ++y) {
            for (int x = std::max(0, static_cast<int>(area.minX()));
                 x < std::min(width(), static_cast<int>(area.maxX())); ++x) {
                result += test(at(x, y)) ? 1 : 0;
            }
        }
        return result;
    }

private:
    void paint(DeskPainter& painter, const DeskPicture& picture, Size window) {
        painter.paint(surface_.context(), picture, window);
        const std::span<const std::byte> pixels = surface_.pixels();
        const auto rowLength = static_cast<std::size_t>(width());
        values_.resize(rowLength * static_cast<std::size_t>(height()));
        for (std::size_t row = 0; row < static_cast<std::size_t>(height()); ++row) {
            std::memcpy(values_.data() + row * rowLength,
                        pixels.data() + row * static_cast<std::size_t>(surface_.stride()),
                        rowLength * sizeof(std::uint32_t));
        }
    }

    Surface surface_;
    std::vector<std::uint32_t> values_;
};

// The smallest rectangle that holds all pixels in which two pictures of one size differ; absent when there
// are none.
inline std::optional<Rect> differenceOf(const PaintedPicture& first, const PaintedPicture& second) {
    int left = first.width();
    int top = first.height();
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            if (first.valueAt(x, y) != second.valueAt(x, y)) {
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x);
                bottom = std::max(bottom, y);
            }
        }
    }
    if (right < 0) {
        return std::nullopt;
    }
    return Rect{static_cast<double>(left), static_cast<double>(top), static_cast<double>(right - left + 1),
                static_cast<double>(bottom - top + 1)};
}

inline bool encloses(const Rect& outer, const Rect& inner, double tolerance = 0) {
    return inner.minX() >= outer.minX() - tolerance && inner.maxX() <= outer.maxX() + tolerance &&
           inner.minY() >= outer.minY() - tolerance && inner.maxY() <= outer.maxY() + tolerance;
}

inline bool isNear(Pixel pixel, int red, int green, int blue, int tolerance) {
    return std::abs(pixel.red - red) <= tolerance && std::abs(pixel.green - green) <= tolerance &&
           std::abs(pixel.blue - blue) <= tolerance;
}

// Two displays side by side with blue wallpapers; the first is pinned and has the Dock, the second is
// guarded.
inline DeskPicture twoDisplays() {
    DeskPicture picture;
    picture.displays = {{.name = "Left",
                         .bounds = {0, 0, 1512, 982},
                         .pinned = true,
                         .bandTop = std::nullopt,
                         .wallpaper = 0},
                        {.name = "Right",
                         .bounds = {1512, -98, 1920, 1080},
                         .pinned = false,
                         .bandTop = 977,
                         .wallpaper = 0}};
    picture.dockDisplay = 0;
    picture.pointer = {700, 400};
    picture.guard = GuardState::on;
    picture.whatHappened = "Moved.";
    picture.clock = "Tue 10:24";
    picture.keys = {{"G", "guard on or off"}, {"Esc", "quit"}};
    return picture;
}

} // namespace kestrune::desk
