// A seal that does not hold.
#pragma once

#include <stdexcept>

namespace kestrune::macho {

// One line of printable text that names the file, or the page, and what is wrong with it.
class SealError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace kestrune::macho
