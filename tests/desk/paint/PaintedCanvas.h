// A piece of paper that a test paints on, and a look at its ink.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/Surface.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>

namespace kestrune::desk {

// White paper, black in dark appearance. Places and rectangles are in logical pixels.
class PaintedCanvas {
public:
    PaintedCanvas(Size size, const std::function<void(const Canvas&)>& paint, bool dark = false,
                  double scale = 1)
        : surface_(*Surface::create(size, scale)),
          scale_(scale),
          paper_(dark ? Pixel{0, 0, 0} : Pixel{255, 255, 255}) {
        cairo_t* const context = surface_.context();
        setColor(context, rgb(dark ? 0x000000 : 0xFFFFFF));
        cairo_paint(context);
        TextPainter text{context};
        ImageStore images;
        paint(Canvas{context, text, images, paletteFor(dark)});
    }

    Pixel at(Point place) const {
        return pixel(static_cast<int>(place.x * scale_), static_cast<int>(place.y * scale_));
    }

    // The smallest rectangle around everything that differs from the paper visibly; absent without ink.
    std::optional<Rect> ink() const {
        constexpr int Tolerance = 10;
        int left = surface_.pixelWidth();
        int top = surface_.pixelHeight();
        int right = -1;
        int bottom = -1;
        for (int y = 0; y < surface_.pixelHeight(); ++y) {
            for (int x = 0; x < surface_.pixelWidth(); ++x) {
                if (!isNear(pixel(x, y), paper_.red, paper_.green, paper_.blue, Tolerance)) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                    right = std::max(right, x);
                    bottom = std::max(bottom, y);
                }
            }
        }
        return right < 0 ? std::nullopt
                         : std::optional(Rect(left / scale_, top / scale_, (right - left + 1) / scale_,
                                              (bottom - top + 1) / scale_));
    }

private:
    Pixel pixel(int x, int y) const {
        const auto offset = static_cast<std::size_t>(y) * static_cast<std::size_t>(surface_.stride()) +
                            static_cast<std::size_t>(x) * sizeof(std::uint32_t);
        std::uint32_t value = 0;
        std::memcpy(&value, surface_.pixels().data() + offset, sizeof(value));
        return {static_cast<int>(value >> 16 & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                static_cast<int>(value & 0xFF)};
    }

    Surface surface_;
    double scale_;
    Pixel paper_;
};

} // namespace kestrune::desk
