#include "mac/URLState.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

std::optional<URL> URL::withString(std::string_view text) {
    const mac::Pool pool;
    return State::handle(mac::foundation.url.urlWithString(mac::nsString(text).get()));
}

std::string URL::absoluteString() const {
    const mac::Pool pool;
    return mac::textOf(mac::foundation.url.absoluteString(state_->url.get()));
}

} // namespace kestrune
