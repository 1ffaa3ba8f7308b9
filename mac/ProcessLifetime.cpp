#include "platform/ProcessLifetime.h"

#include <unordered_map>

namespace kestrune {

// Never destroyed, as the platform may call the objects until the process has ended.
std::shared_ptr<void>& ProcessLifetime::place(const void* key) {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    static auto& places = *new std::unordered_map<const void*, std::shared_ptr<void>>;
    return places[key];
}

} // namespace kestrune
