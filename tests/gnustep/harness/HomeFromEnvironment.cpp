// GNUstep takes the home directory from the user's entry in the password file; here it is that of the
// environment. GNUstep finds these functions in the program, or in a library that is loaded before all
// others, before the system's.
#include <dlfcn.h>
#include <pwd.h>

#include <cstddef>
#include <cstdlib>

namespace {

template <typename Function>
Function* systems(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void moveHome(passwd* found) {
    if (char* const home = std::getenv("HOME"); found != nullptr && home != nullptr) {
        found->pw_dir = home;
    }
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved.
extern "C" int getpwnam_r(const char* name, passwd* entry, char* buffer, std::size_t size, passwd** result) {
    static auto* const systemFunction = systems<decltype(getpwnam_r)>("getpwnam_r");
    const int status = systemFunction(name, entry, buffer, size, result);
    moveHome(*result);
    return status;
}

extern "C" int getpwuid_r(uid_t user, passwd* entry, char* buffer, std::size_t size, passwd** result) {
    static auto* const systemFunction = systems<decltype(getpwuid_r)>("getpwuid_r");
    const int status = systemFunction(user, entry, buffer, size, result);
    moveHome(*result);
    return status;
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
