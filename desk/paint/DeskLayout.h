// Where the displays stand in the window, and the way between window and global display coordinates.
//
// Window coordinates are logical pixels with the origin at the top left and y downwards.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskPicture.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace kestrune::desk {

// One display in window coordinates. The slot is its bounds to scale; neighbouring displays share slot edges.
// The frame is the housing, a little smaller so that neighbours stand apart. The screen is the lit area
// inside the housing.
struct DisplayPlace {
    Rect bounds; // in global display coordinates
    Rect slot;
    Rect frame;
    Rect screen;
    double cornerRadius = 0; // of the frame
    double screenCornerRadius = 0;
};

class DeskLayout {
public:
    static constexpr double HeaderHeight = 64;
    static constexpr double StoryHeight = 56;
    static constexpr double FooterHeight = 112;

    // A story takes a strip of its own below the header.
    DeskLayout(Size window, std::span<const Rect> displays, bool hasStory = false);

    static DeskLayout of(const DeskPicture& picture, Size window);

    // Logical pixels for each point. The same in both directions, at most 1.
    double scale() const { return scale_; }

    // Parts of the window, in window coordinates.
    Rect header() const { return header_; }
    Rect story() const { return story_; }
    Rect content() const { return content_; }
    Rect footer() const { return footer_; }

    // Absent for an index out of range and for a display that cannot be drawn: one without area, or with
    // bounds that are not finite or further than ten million points from the origin.
    const DisplayPlace* place(std::size_t display) const;
    bool isEmpty() const;

    // The first display that contains a point in global display coordinates; null where there is none.
    const DisplayPlace* placeContaining(Point global) const;

    // A point on a display is mapped into that display's screen, any other to scale. Where displays overlap,
    // the first that contains the point decides.
    Point toWindow(Point global) const;

    // The inverse. A point on a housing gives the nearest point of the display; the result is always inside
    // the display's bounds, maximum edges excluded.
    Point toGlobal(Point window) const;

private:
    void divideWindow(Size window, bool hasStory);
    void fit(const Rect& arrangement);

    Rect header_;
    Rect story_;
    Rect content_;
    Rect footer_;
    double scale_ = 1;
    Point offset_;
    std::vector<std::optional<DisplayPlace>> places_;
};

} // namespace kestrune::desk
