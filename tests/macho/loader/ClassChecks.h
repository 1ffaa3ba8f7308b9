// The methods of the classes that a program for the Mac makes, held against what they override and implement.
#pragma once

#include "tests/macho/loader/Messages.h"

namespace kestrune::macho {

// Functions of Apple's runtime that end the process with the method's name when a class is registered, or
// adopts a protocol, and one of its methods has another encoding than the superclass's or the protocol's.
// Nothing is known of a method that neither has.
Functions classFunctions();

} // namespace kestrune::macho
