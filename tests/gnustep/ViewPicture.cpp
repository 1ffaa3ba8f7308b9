#include "tests/gnustep/ViewPicture.h"

#include "tests/gnustep/Send.h"

#include <cstdlib>

namespace kestrune::gnustep {

namespace {

mac::Retained pictureOf(id view) {
    send<void>(view, "display");
    send<void>(view, "lockFocus");
    mac::Retained picture =
        mac::Retained::adopting(send(send(classObject("NSBitmapImageRep"), "alloc"),
                                     "initWithFocusedViewRect:", send<Rect>(view, "bounds")));
    send<void>(view, "unlockFocus");
    return picture;
}

mac::Integer bytesPerPixel(const mac::Retained& picture) {
    return send<mac::Integer>(picture.get(), "bitsPerPixel") / 8;
}

} // namespace

ViewPicture::ViewPicture(id view) : picture_(pictureOf(view)) {}

const unsigned char* ViewPicture::row(mac::Integer y) const {
    return send<const unsigned char*>(picture_.get(), "bitmapData") +
           y * send<mac::Integer>(picture_.get(), "bytesPerRow");
}

contract::SeenColor ViewPicture::at(Point place) const {
    const unsigned char* const pixel = row(static_cast<mac::Integer>(place.y)) +
                                       static_cast<mac::Integer>(place.x) * bytesPerPixel(picture_);
    return {pixel[0], pixel[1], pixel[2]};
}

double ViewPicture::ink() const {
    const auto height = send<mac::Integer>(picture_.get(), "pixelsHigh");
    const auto width = send<mac::Integer>(picture_.get(), "pixelsWide") * bytesPerPixel(picture_);
    double ink = 0;
    for (mac::Integer y = 0; y < height; ++y) {
        for (mac::Integer x = 0; x < width; ++x) {
            ink += std::abs(row(y)[x] - row(0)[x % bytesPerPixel(picture_)]);
        }
    }
    return ink;
}

} // namespace kestrune::gnustep
