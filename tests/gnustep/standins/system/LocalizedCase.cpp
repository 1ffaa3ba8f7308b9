// Upper case in the user's language, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: in most languages it is the upper case of
// Unicode.
#include "tests/gnustep/standins/system/LocalizedCase.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

id localizedUppercaseString(id string, SEL) { return send(string, "uppercaseString"); }

} // namespace

void installLocalizedCase() {
    addMethod(classNamed("NSString"), "localizedUppercaseString", localizedUppercaseString);
}

} // namespace kestrune::gnustep
