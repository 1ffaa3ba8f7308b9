// The functions behind the macros of the unified log.
//
// Source: os/log.h, os/trace_base.h.
#pragma once

#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the names
// are the platform's.
extern "C" {

using os_log_t = struct os_log_s*;

os_log_t os_log_create(const char* subsystem, const char* category);
bool os_log_type_enabled(os_log_t log, std::uint8_t type);

using OSLogFunction = void(void* image, os_log_t log, std::uint8_t type, const char* format,
                           std::uint8_t* buffer, std::uint32_t size);
OSLogFunction _os_log_impl; // of the types that have none of their own
OSLogFunction _os_log_debug_impl;
OSLogFunction _os_log_error_impl;

// Its address is that of the image whose format string a message has. The compiler knows it by this type.
extern void* __dso_handle;

} // extern "C"
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
