// Objects that exist once in a process, are made when they are first wanted, and live as long as it.
//
// A variable with static storage would do on a Mac. A simulated process ends before the one that simulates
// it, and its objects with it.
#pragma once

#include <memory>

namespace kestrune {

class ProcessLifetime {
public:
    // The place of one object, empty at first. `key` is an address that tells the places apart. The reference
    // is good until the process ends. Main thread.
    static std::shared_ptr<void>& place(const void* key);
};

} // namespace kestrune
