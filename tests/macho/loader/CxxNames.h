// Names of functions of the C++ library's, as the compiler writes them: which of them Apple's conventions for
// arm64 concern.
#pragma once

#include <string>

namespace kestrune::macho {

// A constructor or a destructor, which gives the object that it was called for.
bool givesItsObject(const std::string& name);

// Whether the function is LLVM's library's own rather than the language's, and may have to do with strings,
// whose parts are in another order.
bool mayHaveStrings(const std::string& name);

// The same function where strings are laid out as Apple has them.
std::string withStringsOfApple(const std::string& name);

} // namespace kestrune::macho
