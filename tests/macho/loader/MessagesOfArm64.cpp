#include "tests/macho/loader/Messages.h"

extern "C" void kestruneMessage(); // in assembly

namespace kestrune::macho {

Functions messageFunctions(MessageChecks /*nothing is left to check*/) {
    return {{"_objc_msgSend", addressOf(kestruneMessage)}};
}

} // namespace kestrune::macho
