#include "sim/seam/URLState.h"
#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

std::optional<URL> URL::withString(std::string_view text) {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSURL URLWithString:] ", text);
    if (text.empty() || session.refusesURLs()) {
        return std::nullopt;
    }
    return URL(std::make_shared<const State>(State{std::string(text)}));
}

std::string URL::absoluteString() const {
    sim::Session::current().journal().record("-[NSURL absoluteString]");
    return state_->text;
}

} // namespace kestrune
