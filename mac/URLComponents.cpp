#include "platform/URLComponents.h"

#include "mac/URLState.h"
#include "mac/objc/Collections.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

struct URLComponents::State {
    mac::Retained components;
};

namespace {

// Borrowed from the innermost pool.
id queryItem(const URLQueryItem& item) {
    const mac::Retained value = item.value ? mac::nsString(*item.value) : mac::Retained();
    return mac::foundation.urlQueryItem.queryItemWithName(mac::nsString(item.name).get(), value.get());
}

} // namespace

URLComponents::URLComponents()
    : state_(std::make_shared<State>(State{mac::newObject(mac::foundation.urlComponents)})) {}

void URLComponents::setScheme(std::string_view scheme) {
    const mac::Pool pool;
    mac::foundation.urlComponents.setScheme(state_->components.get(), mac::nsString(scheme).get());
}

void URLComponents::setPath(std::string_view path) {
    const mac::Pool pool;
    mac::foundation.urlComponents.setPath(state_->components.get(), mac::nsString(path).get());
}

void URLComponents::setQueryItems(std::span<const URLQueryItem> items) {
    const mac::Pool pool;
    const mac::Retained list = mac::newObject(mac::foundation.mutableArray);
    for (const URLQueryItem& item : items) {
        mac::append(list, queryItem(item));
    }
    mac::foundation.urlComponents.setQueryItems(state_->components.get(), list.get());
}

std::optional<URL> URLComponents::url() const {
    const mac::Pool pool;
    return URL::State::handle(mac::foundation.urlComponents.url(state_->components.get()));
}

} // namespace kestrune
