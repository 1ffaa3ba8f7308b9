#include "sim/LiveObject.h"

#include "sim/Session.h"

namespace kestrune::sim {

LiveObject::LiveObject(std::string_view kind) : kind_(kind), sessionNumber_(Session::current().number()) {
    Session::current().countLiveObject(+1);
}

LiveObject::~LiveObject() {
    // The session may be gone by now: nothing is left to count in.
    if (Session* session = Session::withNumber(sessionNumber_)) {
        session->countLiveObject(-1);
        session->journal().record("CFRelease(", kind_, ")");
    }
}

} // namespace kestrune::sim
