#include "mac/objc/Text.h"

#include "mac/Vocabulary.h"

namespace kestrune::mac {

namespace {

constexpr Unsigned UTF8 = 4; // NSUTF8StringEncoding

} // namespace

Retained nsString(std::string_view text) {
    const id string = ns_object::alloc(ns_string::type.object());
    const char* const bytes = text.empty() ? "" : text.data();
    Retained result = Retained::adopting(ns_string::initWithBytes(string, bytes, text.size(), UTF8));
    return result || text.empty() ? result : nsString({});
}

std::string textOf(id string) {
    const char* const bytes = ns_string::utf8String(string);
    // By length, because a text may have a zero character in it.
    return bytes != nullptr ? std::string(bytes, ns_string::lengthOfBytes(string, UTF8)) : std::string();
}

std::optional<std::string> textIfString(id object) {
    const bool isString = ns_object::isKindOfClass(object, ns_string::type.find()) != 0;
    return isString ? std::optional(textOf(object)) : std::nullopt;
}

} // namespace kestrune::mac
