// Objects that need no arguments.
#pragma once

#include "mac/objc/Message.h"
#include "mac/objc/Retained.h"

namespace kestrune::mac {

// Allocated and initialized with `init`.
Retained newObject(const ClassReference& type);

} // namespace kestrune::mac
