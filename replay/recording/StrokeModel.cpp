#include "replay/recording/StrokeModel.h"

#include <cmath>
#include <cstdint>

namespace kestrune::replay {
namespace {

// For values of at least 1, to 30 binary digits. Squaring a number between 1 and 2 doubles its logarithm:
// each time the square reaches 2, the next digit of the logarithm is 1.
double binaryLogarithm(double value) {
    double logarithm = 0;
    while (value >= 2) {
        value /= 2;
        logarithm += 1;
    }
    double digit = 0.5;
    for (int count = 0; count < 30; ++count) {
        value *= value;
        if (value >= 2) {
            value /= 2;
            logarithm += digit;
        }
        digit /= 2;
    }
    return logarithm;
}

} // namespace

std::chrono::milliseconds strokeDuration(const FittsLaw& law, double distance, double targetWidth) {
    const double difficulty = binaryLogarithm(distance / targetWidth + 1);
    const double duration = law.interceptMilliseconds + law.slopeMilliseconds * difficulty;
    return std::chrono::milliseconds(std::llround(duration));
}

} // namespace kestrune::replay
