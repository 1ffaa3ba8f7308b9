// What a place on the displays belongs to.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DeskTarget.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <optional>

namespace kestrune::desk {

// Keep one for each window; it is meant to be asked with each event of the pointer.
class DeskHitTest {
public:
    // The foremost part at a place in global display coordinates; absent where the bare desk is. Tool tips
    // let everything through.
    std::optional<DeskTarget> targetAt(const DeskPicture& picture, Point place);

    // Where a part is, in global display coordinates; absent for a part that the picture does not have or
    // that has no place of its own.
    std::optional<Rect> areaOf(const DeskPicture& picture, const DeskTarget& target);

    // What is open in front of everything, in global display coordinates: the menu or the tool tip, and
    // without one all windows. Absent when nothing is open.
    std::optional<Rect> openParts(const DeskPicture& picture);

private:
    TextMeasure measure_;
};

} // namespace kestrune::desk
