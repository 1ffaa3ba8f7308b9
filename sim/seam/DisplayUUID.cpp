#include "platform/DisplayUUID.h"

#include "sim/seam/LiveObject.h"
#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

struct DisplayUUID::State {
    explicit State(std::string uuid) : text(std::move(uuid)) {}

    std::string text;
    sim::LiveObject object{"uuid"};
};

DisplayUUID::DisplayUUID(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::optional<DisplayUUID> DisplayUUID::createFromDisplayID(DisplayID displayID) {
    sim::Session& session = sim::Session::current();
    session.journal().record("CGDisplayCreateUUIDFromDisplayID(", displayID, ")");
    std::optional<std::string> uuid = session.displays().uuidOf(displayID);
    if (!uuid) {
        return std::nullopt;
    }
    return DisplayUUID(std::make_shared<State>(*std::move(uuid)));
}

std::optional<std::string> DisplayUUID::createString() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("CFUUIDCreateString(kCFAllocatorDefault)");
    if (session.displays().uuidStringsFail()) {
        return std::nullopt;
    }
    const sim::LiveObject string("string");
    return state_->text;
}

} // namespace kestrune
