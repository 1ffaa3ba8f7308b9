// Values for the properties, which shrink towards a lone display at the origin and the number 0.
#pragma once

#include "base/Geometry.h"
#include "tests/random/common/Arrangement.h"
#include "tests/random/common/StoredValue.h"

#include <rapidcheck.h>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace kestrune {

// Found by RapidCheck, so that a counterexample is readable.
void showValue(const Point& point, std::ostream& stream);
void showValue(const Rect& rect, std::ostream& stream);

} // namespace kestrune

namespace kestrune::simulate {

void showValue(const PlannedDisplay& planned, std::ostream& stream);
void showValue(const StoredMargin& margin, std::ostream& stream);
void showValue(const StoredSwitch& isEnabled, std::ostream& stream);
void showValue(const StoredChoice& choice, std::ostream& stream);

// A multiple of 1/256 within a few thousand points of 0: sums and differences of such numbers are exact.
rc::Gen<double> gridNumbers();

// Also every other number, the infinities, and what is no number.
rc::Gen<double> anyNumbers();

rc::Gen<Point> anyPoints();

// With positive width and height.
rc::Gen<Rect> gridRects();

// Also negative and empty sizes, and null.
rc::Gen<Rect> anyRects();

// At least one display, of ordinary identity, none overlapping, with edges on the grid.
rc::Gen<std::vector<PlannedDisplay>> tamePlans();

// Any number of displays, whatever they are.
rc::Gen<std::vector<PlannedDisplay>> anyPlans();

rc::Gen<StoredMargin> anyMargins();
rc::Gen<StoredSwitch> anySwitches();

// None, one that names no display, or one that names a display of ours.
rc::Gen<StoredChoice> anyChoices(const std::vector<sim::Display>& displays);

// A place on, at or near the edges of one of the displays, or anywhere.
rc::Gen<Point> pointsAround(const std::vector<sim::Display>& displays);

} // namespace kestrune::simulate
