// Protocols that no module here has. GCC's runtime makes none at run time: they come with the modules that a
// compiler has made.
//
// That the Mac's frameworks keep theirs is what we believe, and no proof of it.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::gnustep {

// Those of AppKit's delegates, whose names alone GNUstep knows. Before anything else is installed a test may
// leave them out.
void installDelegateProtocols();
void leaveDelegateProtocolsOut();

// Once for each name; without methods.
void makeProtocol(const char* name);

bool adopts(Class type, const char* protocol);

} // namespace kestrune::gnustep
