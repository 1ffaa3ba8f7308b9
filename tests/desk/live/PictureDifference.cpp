#include "tests/desk/live/PictureDifference.h"

#include "desk/paint/toolkit/CairoObjects.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <span>

namespace kestrune::desk {
namespace {

constexpr int TileSide = 4;
constexpr int Components = 4; // of a pixel, one byte each

using PixelValues = std::array<int, Components>;

class ReadPicture {
public:
    explicit ReadPicture(const std::filesystem::path& file)
        : surface_(cairo_image_surface_create_from_png(file.c_str())) {}

    bool isReadable() const {
        return cairo_surface_status(surface_.get()) == CAIRO_STATUS_SUCCESS &&
               (format() == CAIRO_FORMAT_ARGB32 || format() == CAIRO_FORMAT_RGB24);
    }
    cairo_format_t format() const { return cairo_image_surface_get_format(surface_.get()); }
    int width() const { return cairo_image_surface_get_width(surface_.get()); }
    int height() const { return cairo_image_surface_get_height(surface_.get()); }

    PixelValues at(int x, int y) const {
        const std::size_t stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface_.get()));
        const std::span bytes{cairo_image_surface_get_data(surface_.get()),
                              stride * static_cast<std::size_t>(height())};
        const std::size_t first =
            static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x) * Components;
        return {bytes[first], bytes[first + 1], bytes[first + 2], bytes[first + 3]};
    }

private:
    SurfaceHandle surface_;
};

class Comparison {
public:
    Comparison(const ReadPicture& one, const ReadPicture& other) : one_(one), other_(other) {}

    PictureDifference result() {
        for (int top = 0; top < one_.height(); top += TileSide) {
            for (int left = 0; left < one_.width(); left += TileSide) {
                compareTile(left, top);
            }
        }
        return {static_cast<double>(sum_) / (static_cast<double>(one_.width()) * one_.height() * Components),
                maximum_};
    }

private:
    void compareTile(int left, int top) {
        const int right = std::min(left + TileSide, one_.width());
        const int bottom = std::min(top + TileSide, one_.height());
        PixelValues tile{};
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                const PixelValues here = one_.at(x, y);
                const PixelValues there = other_.at(x, y);
                for (std::size_t component = 0; component < Components; ++component) {
                    const int difference = here[component] - there[component];
                    tile[component] += difference;
                    sum_ += std::abs(difference);
                }
            }
        }
        const double pixels = (right - left) * (bottom - top);
        for (const int total : tile) {
            maximum_ = std::max(maximum_, std::abs(total) / pixels);
        }
    }

    const ReadPicture& one_;
    const ReadPicture& other_;
    long long sum_ = 0;
    double maximum_ = 0;
};

} // namespace

std::optional<PictureDifference> differenceOfPictures(const std::filesystem::path& one,
                                                      const std::filesystem::path& other) {
    const ReadPicture first(one);
    const ReadPicture second(other);
    if (!first.isReadable() || !second.isReadable() || first.format() != second.format() ||
        first.width() != second.width() || first.height() != second.height()) {
        return std::nullopt;
    }
    return Comparison(first, second).result();
}

} // namespace kestrune::desk
