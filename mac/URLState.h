// What a URL is on the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/URL.h"

namespace kestrune {

struct URL::State {
    mac::Retained url;
};

} // namespace kestrune
