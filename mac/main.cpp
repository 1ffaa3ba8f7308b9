// The application's process on a Mac.
#include "Kestrune/KestruneApp.h"
#include "mac/objc/Pool.h"
#include "mac/objc/SelfCheck.h"

int main() {
    const kestrune::mac::Pool pool;
    kestrune::mac::logWhatDiffers();
    const auto delegate = kestrune::runKestrune();
}
