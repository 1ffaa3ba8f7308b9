// The protocols of the platform's delegates.
#pragma once

#include "mac/vocabulary/Message.h"

namespace kestrune::mac {

// Nobody needs a protocol whose methods are asked for, so one that is missing is named in the log, and that
// is all.
void adopt(Class type, const ProtocolReference& protocol);

} // namespace kestrune::mac
