// What a view and everything in it look like.
#pragma once

#include "mac/objc/Retained.h"
#include "tests/contract/Shown.h"

#include <functional>

namespace kestrune::gnustep {

// Taken once, of a pixel for each point; with what is behind the view in its window. What is in its upper
// left corner is its background.
class ViewPicture {
public:
    explicit ViewPicture(id view);

    // With something else drawn over it.
    ViewPicture(id view, const std::function<void()>& draw);

    // Of the point to the right of and below a place, in points from the upper left corner.
    contract::SeenColor at(Point place) const;

    // How much it differs from its background.
    double ink() const;

    // Around everything that differs from the background; empty when nothing does.
    Rect inked() const;

private:
    const unsigned char* pixel(mac::Integer x, mac::Integer y) const;
    int differenceAt(mac::Integer x, mac::Integer y) const;

    mac::Retained picture_;
    mac::Integer width_;
    mac::Integer height_;
    mac::Integer bytesPerRow_;
    mac::Integer bytesPerPixel_;
    const unsigned char* bytes_;
};

} // namespace kestrune::gnustep
