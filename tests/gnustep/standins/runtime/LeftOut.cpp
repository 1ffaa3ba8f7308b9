#include "tests/gnustep/standins/runtime/LeftOut.h"

#include <set>

namespace kestrune::gnustep {

namespace {

std::set<std::string>& leftOut() {
    static std::set<std::string> names;
    return names;
}

} // namespace

void leaveOut(const std::string& name) { leftOut().insert(name); }

bool isLeftOut(const std::string& name) { return leftOut().contains(name); }

} // namespace kestrune::gnustep
