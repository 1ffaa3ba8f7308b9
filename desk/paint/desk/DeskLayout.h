// Where the displays stand in the desk's window, and the way between window and global display coordinates.
//
// Window coordinates are logical pixels with the origin at the top left and y downwards. All that is on a
// display is laid out in global display coordinates and comes into the window under the display's one
// transformation. Its scale is that of all displays; they only stand a little further apart, so that a
// housing has room around each.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace kestrune::desk {

// One display in the window. The screen is its lit area, the display's bounds to scale.
struct DisplayPlace {
    Rect bounds; // in global display coordinates
    double scale = 1;
    Rect screen;
    Rect housing;
    double screenCornerRadius = 0;
    double housingCornerRadius = 0;
    double captionRoom = 0; // free height below the housing

    Point toWindow(Point global) const;
    Rect toWindow(const Rect& global) const;
    Point toGlobal(Point window) const;
};

class DeskLayout {
public:
    static constexpr double HeaderHeight = 64;
    static constexpr double StoryHeight = 56;
    static constexpr double FooterHeight = 112;

    // A story takes a strip of its own below the header; a stage that is alone has neither. What is shown is
    // in global display coordinates, and without it that is all displays.
    DeskLayout(Size window, std::span<const Rect> displays, bool hasStory = false,
               std::optional<Rect> shown = std::nullopt, bool isStageAlone = false);

    static DeskLayout of(const DeskPicture& picture, Size window);

    // Logical pixels for each point. The same in both directions and for all displays, at most 1.
    double scale() const { return scale_; }

    // Parts of the window, in window coordinates. The displays are seen on the stage only.
    Rect header() const { return header_; }
    Rect story() const { return story_; }
    Rect stage() const { return stage_; }
    double stageCornerRadius() const { return stageCornerRadius_; }
    Rect footer() const { return footer_; }

    // Absent for an index out of range and for a display that cannot be drawn: one without area, or with
    // bounds that are not finite or further than ten million points from the origin.
    const DisplayPlace* place(std::size_t display) const;
    bool isEmpty() const;

    // The first display that contains a point in global display coordinates; null where there is none.
    const DisplayPlace* placeContaining(Point global) const;

    // What a place in the window shows of a display; absent beside the screens and beside the stage.
    std::optional<Point> pointAt(Point window) const;

    // Where a hand at a place in the window wants the pointer to be. On a housing that is the nearest point
    // of the display, and further away it is beyond its edge.
    Point toGlobal(Point window) const;

    // What, in global display coordinates, is in the middle of the stage once that has moved across the
    // displays by a way in logical pixels.
    Point centerAfter(Point way) const;

    // The same for a pointer at a place in the window: the stage follows one that is near its edge.
    Point centerFor(Point pointer) const;

private:
    void divideWindow(Size window, bool hasStory, bool isStageAlone);
    void insetStage();
    void spreadOut(std::span<const Rect> displays);
    Rect onDesk(const Rect& bounds) const;
    void show(const Rect& arrangement, const std::optional<Rect>& shown);
    DisplayPlace placeOf(const Rect& bounds) const;

    Rect header_;
    Rect story_;
    Rect stage_;
    Rect footer_;
    double stageCornerRadius_ = 0;
    // How the middles of displays move apart, and what that makes room for, in points.
    Size spread_{1, 1};
    double margin_ = 0;
    double captionRoom_ = 0;
    double scale_ = 1;
    Point offset_;
    std::vector<std::optional<DisplayPlace>> places_;
};

} // namespace kestrune::desk
