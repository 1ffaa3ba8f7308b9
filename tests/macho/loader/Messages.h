// The functions of Apple's runtime that send messages on this processor, over GCC's.
#pragma once

#include <map>
#include <string_view>

namespace kestrune::macho {

// Functions by the names that a program for the Mac imports them under.
using Functions = std::map<std::string_view, void*>;

template <typename Function>
void* addressOf(Function* function) {
    return reinterpret_cast<void*>(function);
}

// Whether each message is first held against the method that it finds. It costs time with every message.
enum class MessageChecks { none, structureReturns };

// Every register that can hold an argument goes on to the method as it came. A message to nil gives zero, and
// where a place for a structure comes as an argument, the place as it is. When the checks are for structures,
// the process ends with the method's name if the way in which it returns its result is not the one in which
// the message was sent. On arm64 both are the same function and nothing is left to check: the place for a
// structure is in a register that nothing else is in, and whether it was meant can not be seen.
Functions messageFunctions(MessageChecks checks);

} // namespace kestrune::macho
