#include "tests/gnustep/world/ViewPicture.h"

#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/Send.h"

#include <algorithm>
#include <cstdlib>

namespace kestrune::gnustep {

namespace {

mac::Retained pictureOf(id view, const std::function<void()>& draw) {
    const mac::Pool pool;
    send<void>(view, "display");
    send<void>(view, "lockFocus");
    draw();
    mac::Retained picture =
        mac::Retained::adopting(send(send(classObject("NSBitmapImageRep"), "alloc"),
                                     "initWithFocusedViewRect:", send<Rect>(view, "bounds")));
    send<void>(view, "unlockFocus");
    return picture;
}

} // namespace

ViewPicture::ViewPicture(id view) : ViewPicture(view, [] {}) {}

ViewPicture::ViewPicture(id view, const std::function<void()>& draw)
    : picture_(pictureOf(view, draw)),
      width_(send<mac::Integer>(picture_.get(), "pixelsWide")),
      height_(send<mac::Integer>(picture_.get(), "pixelsHigh")),
      bytesPerRow_(send<mac::Integer>(picture_.get(), "bytesPerRow")),
      bytesPerPixel_(send<mac::Integer>(picture_.get(), "bitsPerPixel") / 8),
      bytes_(send<const unsigned char*>(picture_.get(), "bitmapData")) {}

const unsigned char* ViewPicture::pixel(mac::Integer x, mac::Integer y) const {
    return bytes_ + y * bytesPerRow_ + x * bytesPerPixel_;
}

contract::SeenColor ViewPicture::at(Point place) const {
    const unsigned char* const seen =
        pixel(static_cast<mac::Integer>(place.x), static_cast<mac::Integer>(place.y));
    return {seen[0], seen[1], seen[2]};
}

int ViewPicture::differenceAt(mac::Integer x, mac::Integer y) const {
    const unsigned char* const seen = pixel(x, y);
    const unsigned char* const background = pixel(0, 0);
    return std::abs(seen[0] - background[0]) + std::abs(seen[1] - background[1]) +
           std::abs(seen[2] - background[2]);
}

double ViewPicture::ink() const {
    double ink = 0;
    for (mac::Integer y = 0; y < height_; ++y) {
        for (mac::Integer x = 0; x < width_; ++x) {
            ink += differenceAt(x, y);
        }
    }
    return ink;
}

Rect ViewPicture::inked() const {
    mac::Integer left = width_;
    mac::Integer top = height_;
    mac::Integer right = 0;
    mac::Integer bottom = 0;
    for (mac::Integer y = 0; y < height_; ++y) {
        for (mac::Integer x = 0; x < width_; ++x) {
            if (differenceAt(x, y) != 0) {
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x + 1);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return right == 0 ? Rect()
                      : Rect(static_cast<double>(left), static_cast<double>(top),
                             static_cast<double>(right - left), static_cast<double>(bottom - top));
}

} // namespace kestrune::gnustep
