#include "tests/mac/WindowPicture.h"

#include "mac/objc/Pool.h"
#include "tests/mac/Objects.h"

#include <cmath>

namespace kestrune::native {

namespace {

// The view around the content, which paints the window's background.
id frameOf(id window) { return send(send(window, "contentView"), "superview"); }

mac::Retained pictureOf(id view) {
    const mac::Pool pool;
    const Rect bounds = send<Rect>(view, "bounds");
    const id picture = send(view, "bitmapImageRepForCachingDisplayInRect:", bounds);
    send<void>(view, "cacheDisplayInRect:toBitmapImageRep:", bounds, picture);
    return mac::Retained::retaining(picture);
}

int component(id color, const char* selector) {
    return static_cast<int>(std::lround(send<double>(color, selector) * 255));
}

} // namespace

WindowPicture::WindowPicture(id window)
    : window_(window), frame_(frameOf(window)), picture_(pictureOf(frame_)) {}

contract::SeenColor WindowPicture::at(Point place) const {
    const mac::Pool pool;
    const id content = send(window_, "contentView");
    const Size size = send<Rect>(content, "bounds").size;
    constexpr double Middle = 0.5; // of a point
    const bool isFlipped = send<BOOL>(content, "isFlipped") != 0;
    const double y = isFlipped ? place.y + Middle : size.height - place.y - Middle;
    const Point inFrame = send<Point>(content, "convertPoint:toView:", Point{place.x + Middle, y}, frame_);
    const Size whole = send<Rect>(frame_, "bounds").size;
    const double down = send<BOOL>(frame_, "isFlipped") != 0 ? inFrame.y : whole.height - inFrame.y;
    const double scale = static_cast<double>(send<mac::Integer>(picture_.get(), "pixelsWide")) / whole.width;
    const id pixel = send(picture_.get(), "colorAtX:y:", static_cast<mac::Integer>(inFrame.x * scale),
                          static_cast<mac::Integer>(down * scale));
    const id color =
        send(pixel, "colorUsingColorSpace:", send(classObject("NSColorSpace"), "sRGBColorSpace"));
    return {component(color, "redComponent"), component(color, "greenComponent"),
            component(color, "blueComponent")};
}

bool WindowPicture::write(const std::string& path) const {
    constexpr mac::Unsigned PortableNetworkGraphics = 4; // NSBitmapImageFileTypePNG
    const mac::Pool pool;
    const id data = send(picture_.get(), "representationUsingType:properties:", PortableNetworkGraphics,
                         send(classObject("NSDictionary"), "dictionary"));
    return send<BOOL>(data, "writeToFile:atomically:", objectFor(path), mac::truth(true)) != 0;
}

} // namespace kestrune::native
