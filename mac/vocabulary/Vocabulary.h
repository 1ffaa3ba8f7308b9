// Every class, protocol and message of the platform that the binding uses.
//
// A message is named after its selector. `checkVocabulary` holds what is declared against the runtime.
#pragma once

#include "mac/vocabulary/AppKit.h"
#include "mac/vocabulary/Foundation.h"
#include "mac/vocabulary/ServiceManagement.h"
#include "mac/vocabulary/Sparkle.h"

#include <array>

namespace kestrune::mac {

inline constexpr std::array<const Framework*, 4> Frameworks = {&appKit, &foundation, &serviceManagement,
                                                               &sparkle};

} // namespace kestrune::mac
