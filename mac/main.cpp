// The application's process on a Mac.
#include "Kestrune/KestruneApp.h"
#include "mac/objc/Pool.h"
#include "mac/objc/SelfCheck.h"

int main() {
    const kestrune::mac::Pool pool;
// GNUstep's few differences are explained where the binding is tested on it.
#if defined(__APPLE__) && !defined(NDEBUG)
    kestrune::mac::requireVocabulary();
#endif
    const auto delegate = kestrune::runKestrune();
}
