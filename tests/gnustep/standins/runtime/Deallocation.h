// The moment at which an object of GNUstep's or of a run-time class goes.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <functional>

namespace kestrune::gnustep {

void installDeallocation();

// `reaction` is called once, before the object's memory is freed. A second one for the same object and owner
// takes the place of the first.
void whenDeallocated(id object, const void* owner, std::function<void()> reaction);
void forgetDeallocation(id object, const void* owner);

} // namespace kestrune::gnustep
