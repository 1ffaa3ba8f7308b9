// What the system's crash reporter reads in the images of a process that has crashed.
//
// Source: the Swift runtime, include/swift/Runtime/CrashReporterClient.h and its Errors.cpp.
#pragma once

#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
struct crashreporter_annotations_t {
    std::uint64_t version = 5;
    std::uint64_t message = 0; // the address of a C string; 0 for none
    std::uint64_t signature_string = 0;
    std::uint64_t backtrace = 0;
    std::uint64_t message2 = 0;
    std::uint64_t thread = 0;
    std::uint64_t dialog_mode = 0;
    std::uint64_t abort_cause = 0;
};
// NOLINTEND(readability-identifier-naming)

// Where it looks. Elsewhere a section has a name alone.
#ifdef __APPLE__
#define CRASHREPORTER_ANNOTATIONS_SECTION "__DATA,__crash_info"
#else
#define CRASHREPORTER_ANNOTATIONS_SECTION "__crash_info"
#endif
