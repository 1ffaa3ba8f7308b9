#include "tests/contract/World.h"

namespace kestrune::contract {

ConnectedDisplay connectedDisplay(DisplayID displayID, const Rect& bounds) {
    return {displayID, "Display " + std::to_string(displayID), bounds, std::nullopt, std::int64_t{displayID}};
}

} // namespace kestrune::contract
