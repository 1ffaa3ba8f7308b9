#include "desk/live/world/OtherApplication.h"

namespace kestrune::desk {

void comeToTheFront(sim::Session& session) { session.user().switchAway(); }

void leaveTheFront(sim::Session& session) {
    if (session.application().policy == ActivationPolicy::regular && !session.windows().shown().empty()) {
        session.user().switchToApplication();
    }
}

ListedApplication kestruneAsListed(const sim::Session& session) {
    const auto& images = session.bundle().images;
    const auto icon = images.find("AppIcon");
    return {"Kestrune", icon != images.end() ? icon->second : ""};
}

} // namespace kestrune::desk
