// Objective-C exceptions that reach a test.
#pragma once

namespace kestrune::gnustep {

// GoogleTest sees them as unknown exceptions. From now on a failure also tells the latest exception that was
// thrown in its test, be it the cause or not.
void reportExceptions();

} // namespace kestrune::gnustep
