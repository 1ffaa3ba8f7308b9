// What a run-loop source is on the platform.
#pragma once

#include "mac/c/CoreFoundation.h"
#include "platform/RunLoop.h"

#include <utility>

namespace kestrune {

struct RunLoopSource::State {
    explicit State(CFRunLoopSourceRef created) : source(created) {}

    mac::CFOwned<CFRunLoopSourceRef> source;
};

} // namespace kestrune
