// The font libraries keep their caches until the process ends, which the leak checker of a sanitized build
// reports. What they keep does not grow from picture to picture.

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\nleak:libpango\n"; }
