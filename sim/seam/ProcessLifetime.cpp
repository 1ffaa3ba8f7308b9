#include "platform/ProcessLifetime.h"

#include "sim/session/Session.h"

namespace kestrune {

std::shared_ptr<void>& ProcessLifetime::place(const void* key) {
    return sim::Session::current().processObjects()[key];
}

} // namespace kestrune
