// The identifiers that the system gives to displays.
#pragma once

namespace kestrune::gnustep {

// Whether the platform makes a string of a UUID.
void setUUIDStringsFail(bool fail);

} // namespace kestrune::gnustep
