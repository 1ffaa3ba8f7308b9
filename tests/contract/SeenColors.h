// Colours of two painters, which round otherwise.
#pragma once

#include "tests/contract/Shown.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace kestrune::contract {

MATCHER_P(Like, expected,
          "is about " + testing::PrintToString(expected.red) + " " + testing::PrintToString(expected.green) +
              " " + testing::PrintToString(expected.blue)) {
    constexpr int Tolerance = 2;
    *result_listener << "which is " << arg.red << " " << arg.green << " " << arg.blue;
    return std::abs(arg.red - expected.red) <= Tolerance &&
           std::abs(arg.green - expected.green) <= Tolerance &&
           std::abs(arg.blue - expected.blue) <= Tolerance;
}

} // namespace kestrune::contract
