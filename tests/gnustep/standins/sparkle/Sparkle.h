// Sparkle.framework in the main bundle.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "tests/contract/World.h"

#include <string>
#include <vector>

namespace kestrune::gnustep {

// Whoever loads the framework from then on makes its classes and protocols.
void installSparkle();

// Puts the framework into the main bundle or takes it out, and tells whether it starts.
void setUpdateFramework(contract::UpdateFramework kind);

// Fault: it is there and cannot be loaded, with that description; as when it is signed by somebody else.
void refuseLoadingUpdateFramework(const std::string& description);

// Fault: the main bundle has no place for frameworks.
void takeAwayFrameworksFolder();

// What its objects were asked for, in order. A message that they would not expect ends the process.
std::vector<std::string>& updateMessages();

// The delegate of the user driver, once it has started; nil when it is gone.
id userDriverDelegate();

} // namespace kestrune::gnustep
