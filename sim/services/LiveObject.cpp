#include "sim/services/LiveObject.h"

#include "sim/services/Current.h"
#include "sim/services/LiveObjects.h"

namespace kestrune::sim {

LiveObject::LiveObject(std::string_view kind, Release release)
    : kind_(kind), release_(release), all_(current<LiveObjects>().weak_from_this()) {
    current<LiveObjects>().made();
}

LiveObject::~LiveObject() {
    // The session may be gone by now: nothing is left to count in.
    if (const auto all = all_.lock()) {
        if (release_ == Release::recorded) {
            all->released(kind_);
        } else {
            all->gone();
        }
    }
}

} // namespace kestrune::sim
