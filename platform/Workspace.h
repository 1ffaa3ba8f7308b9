// What the application asks of the Finder and its like.
//
// Source: AppKit, NSWorkspace.h.
#pragma once

#include "platform/URL.h"

namespace kestrune {

class Workspace {
public:
    // NSWorkspace.sharedWorkspace.
    static Workspace sharedWorkspace();

    // openURL:, in the application that is responsible for the URL. False when there is none; the effect
    // comes later.
    bool openURL(const URL& url);

private:
    Workspace() = default;
};

} // namespace kestrune
