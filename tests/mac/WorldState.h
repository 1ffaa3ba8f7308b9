// What a world on a Mac remembers.
#pragma once

#include "tests/contract/World.h"
#include "tests/mac/OpenMenu.h"

namespace kestrune::contract {

struct World::State {
    native::OpenMenu openMenu{[](bool) {}};
    bool isWithoutUpdateFramework = false; // and the test knows
};

} // namespace kestrune::contract
