#include "platform/ProcessLifetime.h"

#include "sim/session/Current.h"
#include "sim/session/Process.h"

namespace kestrune {

std::shared_ptr<void>& ProcessLifetime::place(const void* key) {
    return sim::current<sim::Process>().objects()[key];
}

} // namespace kestrune
