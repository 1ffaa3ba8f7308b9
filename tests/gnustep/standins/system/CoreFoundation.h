// CoreFoundation's references as the harness knows them: objects of Foundation.
#pragma once

#include "mac/c/CoreFoundation.h"
#include "mac/vocabulary/Runtime.h"

namespace kestrune::gnustep {

id objectOf(CFTypeRef reference);

// Null when the dictionary has no such key. Keys are told apart by their addresses.
const void* valueOfKey(CFDictionaryRef dictionary, const void* key);

} // namespace kestrune::gnustep
