#include "mac/URLState.h"
#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"

namespace kestrune {

std::optional<URL> URL::withString(std::string_view text) {
    const mac::Pool pool;
    return State::handle(mac::ns_url::urlWithString(mac::ns_url::type.object(), mac::nsString(text).get()));
}

std::string URL::absoluteString() const {
    const mac::Pool pool;
    return mac::textOf(mac::ns_url::absoluteString(state_->url.get()));
}

} // namespace kestrune
