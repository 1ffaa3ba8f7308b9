// What a place in the window belongs to.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/DeskTarget.h"
#include "desk/paint/TextMeasure.h"

#include <optional>

namespace kestrune::desk {

// Keep one for each window; it is meant to be asked with each event of the pointer.
class DeskHitTest {
public:
    // The foremost part at a place in logical pixels of a window that shows the picture; absent where the
    // bare desk is. Tool tips let everything through.
    std::optional<DeskTarget> targetAt(const DeskPicture& picture, Size window, Point place);

    // Where a part is, in logical pixels; absent for a part that the picture does not have or that has no
    // place of its own.
    std::optional<Rect> areaOf(const DeskPicture& picture, Size window, const DeskTarget& target);

private:
    TextMeasure measure_;
};

} // namespace kestrune::desk
