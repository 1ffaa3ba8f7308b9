#include "platform/URLComponents.h"

#include "base/Fatal.h"
#include "sim/formats/PercentEncoding.h"
#include "sim/seam/RecordCall.h"
#include "sim/seam/URLState.h"
#include "sim/services/Current.h"
#include "sim/services/Links.h"

namespace kestrune {

struct URLComponents::State {
    std::string scheme;
    std::string path;
    std::string query; // encoded, with the question mark
};

namespace {

bool isScheme(std::string_view text) {
    constexpr std::string_view Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::string_view Others = "0123456789+-.";
    return !text.empty() && Letters.find(text.front()) != std::string_view::npos &&
           text.find_first_not_of(std::string(Letters) + std::string(Others)) == std::string_view::npos;
}

} // namespace

URLComponents::URLComponents() : state_(std::make_shared<State>()) {
    sim::recordCall("-[NSURLComponents init]");
}

void URLComponents::setScheme(std::string_view scheme) {
    sim::recordCall("-[NSURLComponents setScheme:] ", scheme);
    if (!isScheme(scheme)) {
        fatal("NSInvalidArgumentException: the scheme of a URL has characters that it may not have.");
    }
    state_->scheme = scheme;
}

void URLComponents::setPath(std::string_view path) {
    sim::recordCall("-[NSURLComponents setPath:] ", path);
    state_->path = path;
}

void URLComponents::setQueryItems(std::span<const URLQueryItem> items) {
    std::string names;
    state_->query.clear();
    for (const URLQueryItem& item : items) {
        names += (names.empty() ? "" : ", ") + item.name;
        state_->query += (state_->query.empty() ? "?" : "&") + sim::encodedQueryText(item.name);
        if (item.value) {
            state_->query += "=" + sim::encodedQueryText(*item.value);
        }
    }
    sim::recordCall("-[NSURLComponents setQueryItems:] ", names);
}

std::optional<URL> URLComponents::url() const {
    sim::recordCall("-[NSURLComponents URL]");
    // Two slashes would begin a host.
    if (!sim::current<sim::Links>().allowsMaking() || state_->path.starts_with("//")) {
        return std::nullopt;
    }
    const std::string scheme = state_->scheme.empty() ? "" : state_->scheme + ":";
    return URL(std::make_shared<const URL::State>(
        URL::State{scheme + sim::encodedPath(state_->path) + state_->query}));
}

} // namespace kestrune
