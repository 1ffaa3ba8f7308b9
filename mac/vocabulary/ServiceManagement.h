// Classes and messages of ServiceManagement.
//
// Source: SMAppService.h; since macOS 13.
#pragma once

#include "mac/vocabulary/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

struct ServiceManagement : Framework {
    struct SMAppService : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> mainAppService{*this, "mainAppService"};
        Message<Integer()> status{*this, "status"};
        Message<BOOL(id*)> registerAndReturnError{*this, "registerAndReturnError:"};
        Message<BOOL(id*)> unregisterAndReturnError{*this, "unregisterAndReturnError:"};
    } appService{*this, "SMAppService"};
};

extern const ServiceManagement serviceManagement;

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
