// The two directions of a layout, so that what holds for both is said once.
#pragma once

#include "base/Geometry.h"
#include "ui/layout/Layout.h"

#include <optional>

namespace kestrune::ui {

enum class Axis { horizontal, vertical };

inline double lengthAlong(Axis axis, const Size& size) {
    return axis == Axis::horizontal ? size.width : size.height;
}

inline double lengthAcross(Axis axis, const Size& size) {
    return axis == Axis::horizontal ? size.height : size.width;
}

inline std::optional<double> offeredAlong(Axis axis, const ProposedSize& proposal) {
    return axis == Axis::horizontal ? proposal.width : proposal.height;
}

// The proposal with another length along the axis.
inline ProposedSize offering(std::optional<double> length, Axis axis, const ProposedSize& proposal) {
    return axis == Axis::horizontal ? ProposedSize{length, proposal.height}
                                    : ProposedSize{proposal.width, length};
}

inline Size sizeOf(double along, double across, Axis axis) {
    return axis == Axis::horizontal ? Size{along, across} : Size{across, along};
}

inline Point pointAt(double along, double across, Axis axis) {
    return axis == Axis::horizontal ? Point{along, across} : Point{across, along};
}

} // namespace kestrune::ui
