// The application of the stories as it is built for a Mac.
//
// Its entry point comes back only with the end of the application, and the delegate is gone then. So it runs
// on a stack of its own, and where the event loop would be left after the launch, the story goes on instead.
#include "base/Fatal.h"
#include "tests/gnustep/Send.h"
#include "tests/gnustep/standins/Methods.h"
#include "tests/macho/loader/Program.h"
#include "tests/scenarios/LaunchedApplication.h"

#include <ucontext.h>

#include <string>
#include <vector>

namespace kestrune::scenarios {

namespace {

constexpr std::size_t StackSize = 8 << 20; // as the main thread's usually is

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): contexts are switched by functions without
// arguments.
ucontext_t story;
ucontext_t program;
gnustep::Method<void> runOfGNUstep = nullptr;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void run(id application, SEL selector) {
    runOfGNUstep(application, selector);
    swapcontext(&program, &story);
    fatal("A program that has told its story goes on.");
}

void begin() {
    const int status = macho::runProgram(KESTRUNE_PROGRAM);
    fatal("The program has ended with " + std::to_string(status) + " instead of running.");
}

void startProgram() {
    // Kept for ever, as the program stays where it is.
    static std::vector<char> stack(StackSize);
    runOfGNUstep = gnustep::replaceMethod(gnustep::classNamed("NSApplication"), "run", run);
    getcontext(&program);
    program.uc_stack.ss_sp = stack.data();
    program.uc_stack.ss_size = stack.size();
    makecontext(&program, begin, 0);
    swapcontext(&story, &program);
}

} // namespace

struct LaunchedApplication::State {};

LaunchedApplication::LaunchedApplication(contract::World& world) {
    world.launch(startProgram);
    world.runMainQueue();
}

// A process has one story here, and ends with it.
LaunchedApplication::~LaunchedApplication() = default;

} // namespace kestrune::scenarios
