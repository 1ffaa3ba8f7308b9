// How many objects of the platform's the application retains.
#pragma once

#include "sim/services/Journal.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace kestrune::sim {

// An object that outlives the session counts in none: it knows these weakly.
class LiveObjects : public std::enable_shared_from_this<LiveObjects> {
public:
    // `journal` must outlive this.
    explicit LiveObjects(Journal& journal) : journal_(journal) {}

    void made() { ++count_; }
    void gone() { --count_; }

    // By a call, which the journal has.
    void released(std::string_view kind) {
        gone();
        journal_.record("CFRelease(", kind, ")");
    }

    std::int64_t count() const { return count_; }

private:
    Journal& journal_;
    std::int64_t count_ = 0;
};

} // namespace kestrune::sim
