#include "platform/Workspace.h"

#include "sim/seam/RecordCall.h"
#include "sim/seam/URLState.h"
#include "sim/services/Current.h"
#include "sim/services/Links.h"

namespace kestrune {

Workspace Workspace::sharedWorkspace() {
    sim::recordCall("NSWorkspace.sharedWorkspace");
    return {};
}

bool Workspace::openURL(const URL& url) {
    sim::recordCall("-[NSWorkspace openURL:] ", url.state()->text);
    return sim::current<sim::Links>().open(url.state()->text);
}

} // namespace kestrune
