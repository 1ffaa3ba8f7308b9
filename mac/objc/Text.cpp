#include "mac/objc/Text.h"

#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

constexpr Unsigned UTF8 = 4; // NSUTF8StringEncoding

} // namespace

Retained nsString(std::string_view text) {
    const id string = allocate(foundation.string);
    const char* const bytes = text.empty() ? "" : text.data();
    Retained result = Retained::adopting(foundation.string.initWithBytes(string, bytes, text.size(), UTF8));
    return result || text.empty() ? result : nsString({});
}

std::string textOf(id string) {
    const char* const bytes = foundation.string.utf8String(string);
    // By length, because a text may have a zero character in it.
    return bytes != nullptr ? std::string(bytes, foundation.string.lengthOfBytes(string, UTF8))
                            : std::string();
}

std::optional<std::string> textIfString(id object) {
    const bool isString = foundation.object.isKindOfClass(object, foundation.string.find()) != 0;
    return isString ? std::optional(textOf(object)) : std::nullopt;
}

} // namespace kestrune::mac
