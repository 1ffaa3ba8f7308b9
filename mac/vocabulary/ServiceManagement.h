// Classes and messages of ServiceManagement.
//
// Source: SMAppService.h; since macOS 13.
#pragma once

#include "mac/objc/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

namespace sm_app_service {
inline const ClassReference type{"SMAppService"};
inline const Message<id()> mainAppService{type, "mainAppService", MethodKind::ofClass};
inline const Message<Integer()> status{type, "status"};
inline const Message<BOOL(id*)> registerAndReturnError{type, "registerAndReturnError:"};
inline const Message<BOOL(id*)> unregisterAndReturnError{type, "unregisterAndReturnError:"};
} // namespace sm_app_service

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
