// Plain values as Foundation's objects, which the innermost autorelease pool owns.
#pragma once

#include "tests/mac/Send.h"

#include <concepts>
#include <cstdint>
#include <string>

// NOLINTNEXTLINE(readability-identifier-naming): the name is Foundation's.
extern "C" const id NSLocalizedDescriptionKey;

namespace kestrune::native {

inline id objectFor(const std::string& text) {
    return send(classObject("NSString"), "stringWithUTF8String:", text.c_str());
}

// A literal text must not turn into a truth value.
template <std::same_as<bool> Truth>
id objectFor(Truth value) {
    return send(classObject("NSNumber"), "numberWithBool:", mac::truth(value));
}

inline id objectFor(std::int64_t number) {
    return send(classObject("NSNumber"), "numberWithLongLong:", static_cast<long long>(number));
}

inline id objectFor(double number) { return send(classObject("NSNumber"), "numberWithDouble:", number); }

// An NSError with nothing but that description.
inline id errorFor(const std::string& domain, const std::string& description) {
    const id information =
        send(classObject("NSDictionary"), "dictionaryWithObject:forKey:", objectFor(description),
             NSLocalizedDescriptionKey);
    return send(classObject("NSError"), "errorWithDomain:code:userInfo:", objectFor(domain), mac::Integer{1},
                information);
}

} // namespace kestrune::native
