// Recordings made up from what is known about how people move a pointer, for when no recording of a person is
// at hand.
//
// A made-up recording consists of strokes to targets, some followed by a click; pushes against an edge,
// mostly the bottom one, that stay there for a while; drags with each button; turns of the wheel; and
// pauses. Positions are whole pixels, times whole milliseconds, 8 to 16 ms apart while the hand moves, the
// interval at which mice and trackpads of the usual kind report. The same options give the same rows on
// every platform: the numbers come from integer arithmetic and from operations that IEEE 754 defines to
// the last digit. Sources of the facts: StrokeModel.h.
#pragma once

#include "replay/recording/RecordingRow.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrune::replay {

struct MotionGeneratorOptions {
    // The largest coordinate is one less, because 65535 stands for "unknown".
    static constexpr int LargestSide = 65'535;

    std::uint64_t seed = 1;
    int width = 1512; // Of the display, in pixels; from 1 to LargestSide.
    int height = 982;
    std::size_t rows = 10'000; // At least 1.
};

// The first row is a Move that rests in the bottom right pixel, so that the size of the display can be read
// off any generated recording. Options out of range are a programming error.
std::vector<RecordingRow> generateRows(const MotionGeneratorOptions& options);

} // namespace kestrune::replay
