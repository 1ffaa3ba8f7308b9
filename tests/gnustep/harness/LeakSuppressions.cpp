// What libraries keep until the process ends is not ours. GNUstep's and the runtime's own allocations are
// among it, so a leaked object of Foundation's does not show here; objects are counted by a test.

// NOLINTBEGIN(readability-identifier-naming): the names are the sanitizer's.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_options();
// NOLINTEND(readability-identifier-naming)

const char* __lsan_default_suppressions() {
    return "leak:libobjc.so\n"
           "leak:libgnustep-\n"
           "leak:libfontconfig.so\n"
           "leak:libX11.so\n"
           "leak:libxcb.so\n"
           "leak:libcairo.so\n";
}

const char* __lsan_default_options() { return "print_suppressions=0"; }
