// The main bundle, which is the one that every Bundle of the application stands for.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::mac {

// Borrowed.
id theMainBundle();

} // namespace kestrune::mac
