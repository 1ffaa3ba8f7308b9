#include "platform/DisplayUUID.h"

#include "sim/hardware/Displays.h"
#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/LiveObject.h"

#include <utility>

namespace kestrune {

struct DisplayUUID::State {
    explicit State(std::string uuid) : text(std::move(uuid)) {}

    std::string text;
    sim::LiveObject object{"uuid"};
};

DisplayUUID::DisplayUUID(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::optional<DisplayUUID> DisplayUUID::createFromDisplayID(DisplayID displayID) {
    sim::recordCall("CGDisplayCreateUUIDFromDisplayID(", displayID, ")");
    std::optional<std::string> uuid = sim::current<sim::Displays>().uuidOf(displayID);
    if (!uuid) {
        return std::nullopt;
    }
    return DisplayUUID(std::make_shared<State>(*std::move(uuid)));
}

std::optional<std::string> DisplayUUID::createString() const {
    sim::recordCall("CFUUIDCreateString(kCFAllocatorDefault)");
    if (sim::current<sim::Displays>().uuidStringsFail()) {
        return std::nullopt;
    }
    const sim::LiveObject string("string");
    return state_->text;
}

} // namespace kestrune
