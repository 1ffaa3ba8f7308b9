#include "platform/DisplayUUID.h"

#include "mac/c/Quartz.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"

#include <utility>

namespace kestrune {

struct DisplayUUID::State {
    explicit State(CFUUIDRef created) : uuid(created) {}

    mac::CFOwned<CFUUIDRef> uuid;
};

DisplayUUID::DisplayUUID(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::optional<DisplayUUID> DisplayUUID::createFromDisplayID(DisplayID displayID) {
    const CFUUIDRef uuid = CGDisplayCreateUUIDFromDisplayID(displayID);
    return uuid != nullptr ? std::optional(DisplayUUID(std::make_shared<State>(uuid))) : std::nullopt;
}

std::optional<std::string> DisplayUUID::createString() const {
    const mac::Pool pool;
    const mac::CFOwned<CFStringRef> string(CFUUIDCreateString(kCFAllocatorDefault, state_->uuid.get()));
    if (!string) {
        return std::nullopt;
    }
    // A CFString is an NSString.
    return mac::textOf(reinterpret_cast<id>(const_cast<__CFString*>(string.get())));
}

} // namespace kestrune
