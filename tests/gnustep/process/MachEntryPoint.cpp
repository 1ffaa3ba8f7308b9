// The entry point of the application as it is built for a Mac: that of the program in the bundle.
#include "tests/macho/loader/Program.h"

int main() {
    return kestrune::macho::runProgram(KESTRUNE_PROGRAM, kestrune::macho::MessageChecks::structureReturns);
}
