// The desk's own words around the displays: title, state of the guard and pinned display at the top, the
// story of a scene, the names of the displays below their housings, and at the bottom what just happened, the
// counters and the keys. They are views, laid out by the engine that lays out the application's windows.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/toolkit/CachedSprite.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrune::desk {

// A view that has its place in the window.
struct PlacedScene {
    ui::Scene scene;
    Point origin;
};

// Below what the stage shows of the display's housing. Where room runs out, first the badge of the pinned
// display loses its word, then the display's size goes, and then its name. Absent for a display that is drawn
// too small, and for one of which too little is shown.
std::optional<PlacedScene> captionOf(const ui::Measurer& measurer, const DisplayPlace& place,
                                     const DisplayPicture& display, const Rect& stage);

class Chrome {
public:
    // What does not change while something happens.
    void paintStill(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) const;

    // What just happened, and the counters.
    void paintStatus(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

private:
    PangoMeasurer measurer_;
    CachedSprite<DeskPicture> status_;
};

// 1234567 as "1,234,567".
std::string groupedNumber(std::uint64_t number);

} // namespace kestrune::desk
