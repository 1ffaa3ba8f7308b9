// Tests that cannot be run on somebody's Mac: they say why, and count as skipped.
#pragma once

#include <string>

namespace kestrune::native {

// Ends the test that runs now: "A Mac has no <lacking>." It has failed all the same if it had before.
[[noreturn]] void cannotArrange(const std::string& lacking);

// Ends it if it was skipped before it began, as some are that would change what is the user's.
void stopIfSkipped();

} // namespace kestrune::native
