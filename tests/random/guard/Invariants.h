// The rules that every event must obey, and the exact conditions under which the Dock must stay.
#pragma once

#include "sim/session/Session.h"
#include "tests/random/guard/Oracle.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::simulate {

std::string textOf(Point point);

// Equal to the last bit, so that also a coordinate that is no number can be compared.
bool identical(Point one, Point other);

// What is wrong with a delivery, absent when it is right. `handled` says whether the guard's tap was asked.
std::optional<std::string> violationOf(const GuardModel& state, bool handled, const sim::Delivery& delivery);

// Whether the guard, asked about every event, must keep the Dock from moving to `target`, one of the
// `connected` displays. It need not when
// - the guard does not act (switched off, fewer than two displays known, none pinned);
// - `target` is the pinned display, or a twin of it with the same identifier;
// - the guard does not know `target` exactly as it is: not at all, or with other edges (the displays have
//   changed since the last refresh, the refresh saw a passing reading, the display has no usable number, or
//   its edges are rounded when they are turned upside down);
// - another display, connected or known, overlaps `target`: the order of the lists decides there;
// - `target` is so low, or the margin so small next to its coordinates, that the place just above the band is
//   not above the last point, where the Dock is pulled.
bool guardKeepsDockFrom(const sim::Display& target, const GuardModel& state,
                        const std::vector<sim::Display>& connected);

} // namespace kestrune::simulate
