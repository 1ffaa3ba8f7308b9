// The run-time classes of the application's own classes.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "platform/Object.h"

namespace kestrune::mac {

// The class named after the object's, made when the first object of its kind asks for it. Its methods are the
// actions of the object's class and what its delegate classes hear of.
Class classOf(const Object& object);

} // namespace kestrune::mac
