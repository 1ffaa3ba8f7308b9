// What a window looks like, drawn anew by the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "tests/contract/Shown.h"

namespace kestrune::native {

class WindowPicture {
public:
    // With its title bar.
    explicit WindowPicture(id window);

    // At a place of the window's content, in points from its upper left corner; as a colour for every screen.
    contract::SeenColor at(Point place) const;

    // As a PNG file. Whether it was written.
    bool write(const std::string& path) const;

private:
    id window_;
    id frame_;
    mac::Retained picture_;
};

} // namespace kestrune::native
