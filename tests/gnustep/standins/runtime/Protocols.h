// Protocols that no module here has. GCC's runtime makes none at run time: they come with the modules that a
// compiler has made.
//
// That the Mac's frameworks keep theirs is what we believe, and no proof of it.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <vector>

namespace kestrune::gnustep {

// Those of AppKit's delegates, whose names alone GNUstep knows.
void installDelegateProtocols();

// A method of a protocol, with the encoding that Apple's compiler gives it. The texts are kept.
struct ProtocolMethod {
    const char* selectorName;
    const char* encoding;
};

// Unless there is one of that name.
void makeProtocol(const char* name, const std::vector<ProtocolMethod>& methods);

bool adopts(Class type, const char* protocol);

} // namespace kestrune::gnustep
