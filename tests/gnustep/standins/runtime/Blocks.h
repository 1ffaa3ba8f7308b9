// Blocks seen from the harness.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <string>

namespace kestrune::gnustep {

// Calls a block without argument, or with nil as its only one.
void callBlock(id block);

// What the blocks runtime reads of a block, in the ABI's words.
struct BlockLayout {
    int flags;
    int reserved;
    unsigned long reservedOfDescriptor;
    unsigned long size;
    std::string signature;
};
BlockLayout layoutOf(id block);

} // namespace kestrune::gnustep
