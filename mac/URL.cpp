#include "mac/URLState.h"
#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"

namespace kestrune {

std::optional<URL> URL::withString(std::string_view text) {
    const mac::Pool pool;
    const id url = mac::ns_url::urlWithString(mac::ns_url::type.object(), mac::nsString(text).get());
    if (url == nullptr) {
        return std::nullopt;
    }
    return URL(std::make_shared<const State>(State{mac::Retained::retaining(url)}));
}

} // namespace kestrune
