#include "tests/gnustep/mach/SuspendedProgram.h"

#include "base/Fatal.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <ucontext.h>

#include <cstdlib>
#include <vector>

namespace kestrune::gnustep {

namespace {

constexpr std::size_t StackSize = 8 << 20; // as the main thread's usually is

// A function that a context begins with takes no arguments that could be an object.
struct Suspended {
    std::string path;
    macho::MessageChecks checks{};
    std::vector<char> stack = std::vector<char>(StackSize);
    ucontext_t launcher{};
    ucontext_t program{};
    Method<void> run = nullptr; // GNUstep's
};

// Never destroyed, as the program stays where it is.
Suspended& suspended() {
    static Suspended& only = *new Suspended;
    return only;
}

void runAndSuspend(id application, SEL selector) {
    suspended().run(application, selector);
    swapcontext(&suspended().program, &suspended().launcher);
    fatal("A program that was left to wait goes on.");
}

void begin() {
    const int status = macho::runProgram(suspended().path, suspended().checks);
    fatal("The program has ended with " + std::to_string(status) + " instead of running.");
}

} // namespace

std::string programForMacs() {
    const char* const named = std::getenv("KESTRUNE_PROGRAM");
    return named != nullptr ? named : KESTRUNE_PROGRAM;
}

// On a stack of its own.
void launchProgram(const std::string& path, macho::MessageChecks checks) {
    Suspended& only = suspended();
    only.path = path;
    only.checks = checks;
    only.run = replaceMethod(classNamed("NSApplication"), "run", runAndSuspend);
    getcontext(&only.program);
    only.program.uc_stack.ss_sp = only.stack.data();
    only.program.uc_stack.ss_size = only.stack.size();
    makecontext(&only.program, begin, 0);
    swapcontext(&only.launcher, &only.program);
}

} // namespace kestrune::gnustep
