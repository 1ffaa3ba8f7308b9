#include "base/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace kestrune {

void fatal(std::string_view message) noexcept {
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

void fatal(std::string_view message, std::string_view sourcePath) noexcept {
    std::fprintf(stderr, "%.*s: ", static_cast<int>(sourcePath.size()), sourcePath.data());
    fatal(message);
}

} // namespace kestrune
