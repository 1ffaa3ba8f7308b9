// Where GNUstep does otherwise than the Mac.
#pragma once

#include <limits>
#include <span>
#include <string_view>

namespace kestrune::gnustep {

struct KnownDifference {
    std::string_view test; // The whole name, or its beginning if it ends in a slash.
    std::string_view expression;
    std::string_view value; // What GNUstep gives for it, in GoogleTest's words.
    const char* explanation;

    // The first and the last release that differs, as release() counts them.
    int from = std::numeric_limits<int>::min();
    int until = std::numeric_limits<int>::max();
};

// The first of them that a release has in a test; null when the test has to pass there.
const KnownDifference* knownDifference(std::span<const KnownDifference> differences, std::string_view test,
                                       int release);

// Judges the tests that ran, and GoogleTest's own verdict on them: each must pass, but for those in which
// GNUstep is known to differ. These must fail, at nothing but the expression that is known; then the list is
// still true. Tells what is not as it should be.
bool ranAsKnown(int status);

} // namespace kestrune::gnustep
