// Objects from their classes.
#pragma once

#include "mac/objc/Retained.h"
#include "mac/vocabulary/Message.h"

namespace kestrune::mac {

// Owned by the caller, who initializes it. Nil for no class.
id allocate(Class type);

// Nil, which the log says once, when there is no such class.
id allocate(const ClassReference& type);

// Allocated and initialized with `init`; empty when there is no such class.
Retained newObject(const ClassReference& type);

} // namespace kestrune::mac
