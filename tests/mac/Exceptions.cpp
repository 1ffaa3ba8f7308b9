// Exceptions as the application meets them: C++'s and its library's through its own functions, Foundation's
// through them, and C++'s through Foundation's. Ends with success when each is caught where it should be and
// everything on its way is destroyed.
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

namespace kestrune::mac {
namespace {

struct Raising : Framework {
    struct NSException : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(id, id, id)> exceptionWithName{*this, "exceptionWithName:reason:userInfo:"};
        Message<void()> raise{*this, "raise"};
    } exception{*this, "NSException"};

    struct NSObject : ClassReference {
        using ClassReference::ClassReference;
        Message<id(SEL, id)> performSelector{*this, "performSelector:withObject:"};
    } object{*this, "NSObject"};
};

constinit const Raising raising; // NOLINT(readability-identifier-naming): as those of the vocabulary

int destroyed = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

struct Counted {
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { ++destroyed; }
};

// Frames with saved registers and a large one, one in the other.
[[gnu::noinline]] int deep(int depth, const std::function<void()>& end, int a, int b, double c) {
    const Counted counted;
    volatile char room[5000];
    room[depth] = static_cast<char>(a + b);
    if (depth == 0) {
        end();
        return 0;
    }
    const int rest = deep(depth - 1, end, b + room[depth], a, c * 2);
    return rest + a * b + static_cast<int>(c) + room[depth];
}

constexpr int Depth = 20;

// What is thrown in the innermost frame arrives here as `Thrown`.
template <typename Thrown>
bool arrives(const std::function<void()>& end, const std::function<bool(const Thrown&)>& isRight) {
    destroyed = 0;
    try {
        deep(Depth, end, 1, 2, 3);
    } catch (const Thrown& thrown) {
        return isRight(thrown) && destroyed == Depth + 1;
    }
    return false;
}

bool cxxThroughCxx() {
    return arrives<std::logic_error>(
        [] { throw std::out_of_range("deep"); },
        [](const std::logic_error& error) { return std::string(error.what()) == "deep"; });
}

// Thrown by a function of the C++ library's that is not part of this program.
bool libraryThroughCxx() {
    return arrives<std::out_of_range>([] { std::string("short").insert(9, "behind the end", 14); },
                                      [](const std::out_of_range& error) { return *error.what() != '\0'; });
}

// Of no type that C++ knows.
bool foundationThroughCxx() {
    destroyed = 0;
    try {
        deep(
            Depth,
            [] {
                raising.exception.raise(raising.exception.exceptionWithName(nsString("Deep").get(),
                                                                            nsString("deep").get(), nullptr));
            },
            1, 2, 3);
    } catch (...) {
        return destroyed == Depth + 1;
    }
    return false;
}

id throwFromMethod(id, SEL, id /*argument*/) {
    const Counted counted;
    throw std::runtime_error("through Foundation");
}

id throwingObject() {
    const Class type = objc_allocateClassPair(foundation.object.find(), "KestruneThrowing", 0);
    class_addMethod(type, sel_registerName("throw:"), asImplementation(throwFromMethod), "@@:@");
    objc_registerClassPair(type);
    return foundation.object.init(allocate(type));
}

bool cxxThroughFoundation() {
    const Retained object = Retained::adopting(throwingObject());
    destroyed = 0;
    try {
        raising.object.performSelector(object.get(), sel_registerName("throw:"), nullptr);
    } catch (const std::exception& error) {
        return std::string(error.what()) == "through Foundation" && destroyed == 1;
    }
    return false;
}

bool tell(const char* what, bool isRight) {
    std::printf("%s: %s\n", what, isRight ? "caught, and everything on the way destroyed" : "WRONG");
    return isRight;
}

} // namespace
} // namespace kestrune::mac

int main() {
    using namespace kestrune::mac;
    const Pool pool;
    const bool isRight = tell("C++ through C++", cxxThroughCxx()) &&
                         tell("The C++ library through C++", libraryThroughCxx()) &&
                         tell("Foundation through C++", foundationThroughCxx()) &&
                         tell("C++ through Foundation", cxxThroughFoundation());
    return isRight ? EXIT_SUCCESS : EXIT_FAILURE;
}
