#include "tests/mac/Preparation.h"

namespace kestrune::native {

std::function<void()>& preparation() {
    static std::function<void()> prepare = [] {};
    return prepare;
}

std::string& systemVersionFile() {
    static std::string path = "/System/Library/CoreServices/SystemVersion.plist";
    return path;
}

} // namespace kestrune::native
