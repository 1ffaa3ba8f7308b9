#include "tests/gnustep/standins/runtime/Expectations.h"

#include "base/Fatal.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::gnustep {

void expect(const char* framework, bool holds, const std::string& otherwise) {
    if (!holds) {
        fatal(std::string("A message that ") + framework + " would not expect: " + otherwise);
    }
}

void expectMainThread(const char* framework) {
    expect(framework, mac::foundation.thread.isMainThread() != 0,
           "it comes from another thread than the main one");
}

} // namespace kestrune::gnustep
