#include "sim/seam/LiveObject.h"

#include "sim/session/Session.h"

namespace kestrune::sim {

LiveObject::LiveObject(std::string_view kind, Release release)
    : kind_(kind), release_(release), sessionNumber_(Session::current().number()) {
    Session::current().countLiveObject(+1);
}

LiveObject::~LiveObject() {
    // The session may be gone by now: nothing is left to count in.
    if (Session* session = Session::withNumber(sessionNumber_)) {
        session->countLiveObject(-1);
        if (release_ == Release::recorded) {
            session->journal().record("CFRelease(", kind_, ")");
        }
    }
}

} // namespace kestrune::sim
