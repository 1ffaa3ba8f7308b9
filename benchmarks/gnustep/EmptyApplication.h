// Applications of the same toolkit that do nothing, written as messages to it.
#pragma once

namespace kestrune::benchmarks {

// Without a menu. Does not come back.
void runBareApplication();

// With what every application in the menu bar has: a main menu, and a status item with an icon and a menu, of
// one row each. Does not come back.
void runEmptyApplication();

} // namespace kestrune::benchmarks
