// How a hand moves a pointer from one place to another.
//
// Facts:
// - A point-to-point movement of the hand follows the path of minimum jerk: after the fraction t of its
//   duration it has covered 10 t^3 - 15 t^4 + 6 t^5 of the distance, so its speed over time has the shape of
//   a bell, with a peak of 15/8 of the mean in the middle. (Flash and Hogan, "The coordination of arm
//   movements", J. Neuroscience 5, 1985.)
// - Its duration grows with the index of difficulty, the binary logarithm of distance over target width.
//   (Fitts, "The information capacity of the human motor system", J. Experimental Psychology 47, 1954.)
// - With the index log2(distance / width + 1), pointing with a mouse takes 230 ms + 166 ms per bit
//   (MacKenzie, "Movement time prediction in human-computer interfaces", Graphics Interface 1992), and
//   dragging with a mouse 135 ms + 249 ms per bit (MacKenzie, Sellen and Buxton, "A comparison of input
//   devices in elemental pointing and dragging tasks", CHI 1991).
//
// Everything here uses additions, multiplications and divisions only, which IEEE 754 rounds alike everywhere;
// the logarithms of C libraries differ in their last digits.
#pragma once

#include <chrono>

namespace kestrune::replay {

// Duration = intercept + slope * index of difficulty in bits.
struct FittsLaw {
    double interceptMilliseconds;
    double slopeMilliseconds;
};

inline constexpr FittsLaw MousePointing{230, 166};
inline constexpr FittsLaw MouseDragging{135, 249};

// Distance and target width in the same unit; the distance is not negative, the width is above 0.
std::chrono::milliseconds strokeDuration(const FittsLaw& law, double distance, double targetWidth);

// The fraction of the distance that is covered after a fraction of the duration; both from 0 to 1.
constexpr double minimumJerkProgress(double t) { return t * t * t * (10 + t * (6 * t - 15)); }

} // namespace kestrune::replay
