#include "platform/Workspace.h"

#include "mac/URLState.h"
#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

Workspace Workspace::sharedWorkspace() { return {}; }

bool Workspace::openURL(const URL& url) {
    const mac::Pool pool;
    const id workspace = mac::appKit.workspace.sharedWorkspace();
    return mac::appKit.workspace.openURL(workspace, url.state()->url.get()) != 0;
}

} // namespace kestrune
