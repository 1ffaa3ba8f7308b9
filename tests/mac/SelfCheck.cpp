// Holds the binding's vocabulary against the platform that this process runs on. Ends with a message that
// names every difference, or prints how much there was to check.
#include "mac/objc/SelfCheck.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"

#include <cstdio>

int main() {
    const kestrune::mac::Pool pool;
    kestrune::mac::requireVocabulary();
    const auto result = kestrune::mac::checkVocabulary();
    std::printf("%zu classes and %zu messages are as the binding expects them\n", result.classes,
                result.messages);
}
