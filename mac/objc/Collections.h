// Arrays and dictionaries of the platform's, which take no nil.
#pragma once

#include "mac/objc/Retained.h"

namespace kestrune::mac {

// Nothing is added for nil, which is what there is of something that the platform lacks.
void append(const Retained& mutableArray, id object);
void set(const Retained& mutableDictionary, id key, id object);

} // namespace kestrune::mac
