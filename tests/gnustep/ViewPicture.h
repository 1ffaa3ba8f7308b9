// What a view and everything in it look like.
#pragma once

#include "mac/objc/Retained.h"
#include "tests/contract/Shown.h"

namespace kestrune::gnustep {

// Taken once; with what is behind the view in its window.
class ViewPicture {
public:
    explicit ViewPicture(id view);

    // Of the point to the right of and below a place, in points from the upper left corner.
    contract::SeenColor at(Point place) const;

    // How much it differs from the colours of its upper left corner.
    double ink() const;

private:
    const unsigned char* row(mac::Integer y) const;

    mac::Retained picture_;
};

} // namespace kestrune::gnustep
