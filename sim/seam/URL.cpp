#include "sim/seam/RecordCall.h"
#include "sim/seam/URLState.h"
#include "sim/services/Current.h"
#include "sim/services/Links.h"

#include <utility>

namespace kestrune {

std::optional<URL> URL::withString(std::string_view text) {
    sim::recordCall("+[NSURL URLWithString:] ", text);
    if (text.empty() || !sim::current<sim::Links>().allowsMaking()) {
        return std::nullopt;
    }
    return URL(std::make_shared<const State>(State{std::string(text)}));
}

std::string URL::absoluteString() const {
    sim::recordCall("-[NSURL absoluteString]");
    return state_->text;
}

} // namespace kestrune
