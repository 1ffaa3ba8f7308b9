// kestrune-mach-program FILE [ARGUMENT]...: runs a program that is built for Macs, with the stand-ins at hand
// and none of them installed. Gives what it gives; status 2 when it cannot be loaded.
#include "tests/macho/loader/Program.h"

#include <cstdio>
#include <string>
#include <vector>

int main(int count, char** arguments) {
    if (count < 2) {
        std::fputs("usage: kestrune-mach-program FILE [ARGUMENT]...\n", stderr);
        return 2;
    }
    return kestrune::macho::runProgram(arguments[1], kestrune::macho::MessageChecks::structureReturns,
                                       {arguments + 2, arguments + count});
}
