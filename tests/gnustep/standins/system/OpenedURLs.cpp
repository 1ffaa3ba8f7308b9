// The workspace's openURL:, which on GNUstep asks other programs, and the user when there is none.
//
// This is what we believe the Mac does, and no proof of it: some application is responsible for every URL,
// unless a test has it otherwise; then nobody is told.
#include "tests/gnustep/standins/system/OpenedURLs.h"

#include "mac/objc/Text.h"
#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

bool refusesOpening = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

BOOL openURL(id, SEL, id url) {
    if (refusesOpening) {
        return mac::truth(false);
    }
    openedURLs().push_back(mac::textOf(send(url, "absoluteString")));
    return mac::truth(true);
}

} // namespace

void installOpenedURLs() { replaceMethod(classNamed("NSWorkspace"), "openURL:", openURL); }

std::vector<std::string>& openedURLs() {
    static std::vector<std::string> urls;
    return urls;
}

void refuseOpeningURLs(bool refuse) { refusesOpening = refuse; }

} // namespace kestrune::gnustep
