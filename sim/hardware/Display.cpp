#include "sim/hardware/Display.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace kestrune::sim {

Display makeDisplay(DisplayID displayID, std::string localizedName, const Rect& bounds) {
    return {displayID, uuidOfDisplay(displayID), std::int64_t{displayID}, std::move(localizedName), bounds};
}

std::string uuidOfDisplay(DisplayID displayID) {
    std::array<char, 37> text;
    std::snprintf(text.data(), text.size(), "37D8832A-2D66-02CA-B9F7-8F30%08X", displayID);
    return text.data();
}

} // namespace kestrune::sim
