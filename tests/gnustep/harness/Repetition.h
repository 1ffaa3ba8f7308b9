// The whole suite again and again, to find what fails once in a thousand times.
#pragma once

namespace kestrune::gnustep {

// Runs every test `runs` times, several runs at a time, each test in a process of its own, in which
// `runTests` runs the tests of the filter and gives an exit status. Prints what failed, with its output, and
// the counts; gives an exit status. Call it before anything of GNUstep is used, as what processes share is
// made by fork.
int repeatSuite(int runs, int runsAtATime, int (*runTests)());

} // namespace kestrune::gnustep
