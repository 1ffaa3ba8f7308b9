#include "tests/gnustep/harness/Release.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/gnustep/harness/Objects.h"

#include <charconv>
#include <string>

namespace kestrune::gnustep {

int release() {
    const mac::Pool pool;
    const id bundle = send(classObject("NSBundle"), "bundleForLibrary:", objectFor("gnustep-gui"));
    const std::string version = mac::textOf(
        send(send(bundle, "infoDictionary"), "objectForKey:", objectFor("CFBundleShortVersionString")));
    int number = 0;
    if (!version.starts_with("0.") ||
        std::from_chars(version.data() + 2, version.data() + version.size(), number).ec != std::errc()) {
        fatal("GNUstep's AppKit tells no release that is known here: \"" + version + "\"");
    }
    return number;
}

} // namespace kestrune::gnustep
