// Arrangements of displays, described relatively, so that a generator can vary one display and the others
// still make sense.
#pragma once

#include "base/Geometry.h"
#include "sim/hardware/Display.h"

#include <cstddef>
#include <vector>

namespace kestrune::simulate {

enum class Side { right, left, above, below, onTop };

// Where a display stands beside one that is there already.
struct Placement {
    Side side = Side::right;

    // Which of the earlier displays it stands beside, counted from 0 and taken modulo their number.
    std::size_t neighbour = 0;

    // How far it is shifted along the common edge, in points; for `onTop`, in both directions.
    double shift = 0;

    // In points.
    Size size{1920, 1080};
};

// How the system knows a display.
enum class Identity {
    ordinary,
    withoutUUID,
    twin, // the UUID of the first display
    withoutNumber,
    negativeNumber,
    fractionalNumber,
    textNumber,
    realNumber, // the right number, as a real
    tooLargeNumber,
    unknownNumber, // a number that belongs to no display
    firstNumber,   // the number of the first display
};

struct PlannedDisplay {
    Placement placement;
    Identity identity = Identity::ordinary;
};

// Where a display lands beside those that stand there already, in global display coordinates. Only `onTop`
// makes it overlap another: whoever does not find room goes to the right of all. The first display lands at
// (0, 0).
Rect place(const Placement& placement, const std::vector<Rect>& standing);

// A display with a number that no other has.
sim::Display identify(Identity identity, DisplayID displayID, const Rect& bounds,
                      const std::vector<sim::Display>& connected);

// All displays of a plan, numbered from `firstID`.
std::vector<sim::Display> arrange(const std::vector<PlannedDisplay>& plan, DisplayID firstID);

// Moves an arrangement so that its first display is the primary one, at (0, 0).
void putPrimaryAtOrigin(std::vector<sim::Display>& displays);

std::vector<Rect> boundsOf(const std::vector<sim::Display>& displays);

bool overlap(const Rect& one, const Rect& other);

} // namespace kestrune::simulate
