#include "platform/ProcessLifetime.h"

#include "sim/services/Current.h"
#include "sim/services/Process.h"

namespace kestrune {

std::shared_ptr<void>& ProcessLifetime::place(const void* key) {
    return sim::current<sim::Process>().objects()[key];
}

} // namespace kestrune
