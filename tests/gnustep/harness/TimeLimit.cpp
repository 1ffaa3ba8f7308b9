#include "tests/gnustep/harness/TimeLimit.h"

#include "mac/vocabulary/Runtime.h"

#include <execinfo.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace kestrune::gnustep {

namespace {

constexpr std::uintptr_t LongestMethod = 0x8000; // bytes

using MethodNames = std::map<std::uintptr_t, std::string>;

void addMethodsOf(Class type, const char* kind, MethodNames& names) {
    unsigned count = 0;
    struct objc_method** const methods = class_copyMethodList(type, &count);
    for (unsigned index = 0; index < count; ++index) {
        names[reinterpret_cast<std::uintptr_t>(method_getImplementation(methods[index]))] =
            std::string(kind) + class_getName(type) + " " + sel_getName(method_getName(methods[index])) + "]";
    }
    std::free(methods); // NOLINT(cppcoreguidelines-no-malloc): the runtime took it from there.
}

// GNUstep's libraries have no symbols for their methods, but the runtime knows where each begins.
MethodNames methodNames() {
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(classes.data(), static_cast<int>(classes.size()));
    MethodNames names;
    for (const Class type : classes) {
        addMethodsOf(type, "-[", names);
        addMethodsOf(object_getClass(reinterpret_cast<id>(type)), "+[", names);
    }
    return names;
}

// What is not safe in a signal handler comes last and has seconds of its own to hang in.
void stop(int) {
    static std::array<void*, 128> frames;
    std::signal(SIGALRM, SIG_DFL);
    alarm(5);
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    std::fputs("The time limit is over. The main thread is in:\n", stderr);
    backtrace_symbols_fd(frames.data(), count, STDERR_FILENO);
    const MethodNames names = methodNames();
    for (int index = 0; index < count; ++index) {
        const auto address = reinterpret_cast<std::uintptr_t>(frames[static_cast<std::size_t>(index)]);
        const auto next = names.upper_bound(address);
        if (next != names.begin() && address - std::prev(next)->first < LongestMethod) {
            std::fprintf(stderr, "%d: %s or a function behind it\n", index, std::prev(next)->second.c_str());
        }
    }
    std::abort();
}

} // namespace

void limitTime(unsigned seconds) {
    std::signal(SIGALRM, stop);
    alarm(seconds);
}

} // namespace kestrune::gnustep
