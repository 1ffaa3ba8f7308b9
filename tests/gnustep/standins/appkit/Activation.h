// Which application is active.
#pragma once

namespace kestrune::gnustep {

void installActivation();

// The user makes this application the active one, or another one.
void setActive(bool isActive);
bool isActive();

} // namespace kestrune::gnustep
