#include "platform/Workspace.h"

#include "sim/seam/URLState.h"
#include "sim/session/Session.h"

namespace kestrune {

Workspace Workspace::sharedWorkspace() {
    sim::Session::current().journal().record("NSWorkspace.sharedWorkspace");
    return {};
}

bool Workspace::openURL(const URL& url) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSWorkspace openURL:] ", url.state()->text);
    return session.openURL(url.state()->text);
}

} // namespace kestrune
