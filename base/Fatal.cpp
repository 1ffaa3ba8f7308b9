#include "base/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace kestrune {

void fatal(std::string_view message) noexcept {
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

} // namespace kestrune
