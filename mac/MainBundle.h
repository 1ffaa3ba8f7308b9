// The main bundle, which is the one that every Bundle of the application stands for.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::mac {

// Borrowed.
id theMainBundle();

} // namespace kestrune::mac
