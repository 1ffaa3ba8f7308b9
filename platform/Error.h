// Why the platform refused what it was asked for.
//
// Source: Foundation, NSError.h.
#pragma once

#include <string>

namespace kestrune {

// What the application wants to know of an NSError.
struct Error {
    std::string localizedDescription; // for people, in their language; UTF-8
};

} // namespace kestrune
