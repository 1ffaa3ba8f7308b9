// A limit to the real time that a test may take.
#pragma once

namespace kestrune::gnustep {

// After so many seconds the process writes to standard error where its main thread is, and aborts.
void limitTime(unsigned seconds);

} // namespace kestrune::gnustep
