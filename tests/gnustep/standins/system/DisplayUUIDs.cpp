// Display UUIDs, from ColorSync and CoreFoundation.
//
// This is what we believe the Mac does, and no proof of it: a UUID is made anew each time, outlives the
// connection of its display, and its string belongs to whoever asked for it.
#include "tests/gnustep/standins/system/DisplayUUIDs.h"

#include "mac/c/Quartz.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/runtime/Subclass.h"
#include "tests/gnustep/standins/system/CoreFoundation.h"

#include <string>

namespace kestrune::gnustep {

namespace {

struct UUID {
    std::string text;
};

bool uuidStringsFail = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

const Subclass<UUID>& uuids() {
    static const Subclass<UUID> type("KestruneCFUUID");
    return type;
}

} // namespace

void setUUIDStringsFail(bool fail) { uuidStringsFail = fail; }

extern "C" {

CFUUIDRef CGDisplayCreateUUIDFromDisplayID(std::uint32_t displayID) {
    const auto text = uuidOfDisplay(displayID);
    return text ? reinterpret_cast<CFUUIDRef>(uuids().make(*text)) : nullptr;
}

CFStringRef CFUUIDCreateString(CFAllocatorRef /*allocator*/, CFUUIDRef uuid) {
    if (uuidStringsFail) {
        return nullptr;
    }
    const mac::Retained string = mac::nsString(Subclass<UUID>::of(objectOf(uuid)).text);
    return reinterpret_cast<CFStringRef>(mac::foundation.object.retain(string.get()));
}

} // extern "C"

} // namespace kestrune::gnustep
