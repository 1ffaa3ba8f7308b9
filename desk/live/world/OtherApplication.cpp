#include "desk/live/world/OtherApplication.h"

namespace kestrune::desk {

void comeToTheFront(sim::Session& session) { session.windows().setActive(false); }

void leaveTheFront(sim::Session& session) {
    if (session.application().policy == ActivationPolicy::regular && !session.windows().shown().empty()) {
        session.windows().setActive(true);
    }
}

} // namespace kestrune::desk
