// What the platform reports of a call that it refuses.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "platform/Error.h"

#include <optional>

namespace kestrune::mac {

// Of a method that gives whether it has done it, and an NSError otherwise. `reported` is borrowed, and not
// looked at unless the method has failed, as it may hold anything then.
std::optional<Error> errorUnless(BOOL isDone, id reported);

} // namespace kestrune::mac
