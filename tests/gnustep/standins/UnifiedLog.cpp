// The unified log.
//
// This is what we believe the Mac does, and no proof of it. The buffer is read as the compiler's builtins lay
// it out: flags, the number of arguments, and for each its kind and privacy, its size and its bytes.
//
// Source: os/trace_base.h; clang.llvm.org, lib/AST/OSLog.cpp.
#include "tests/gnustep/standins/UnifiedLog.h"

#include "base/Fatal.h"
#include "mac/c/UnifiedLog.h"

#include <cstring>
#include <memory>
#include <string>
#include <string_view>

struct os_log_s {
    std::string subsystem;
    std::string category;
};

namespace kestrune::gnustep {

using contract::LoggedMessage;

namespace {

constexpr std::uint8_t HasNonScalar = 0x02;
constexpr std::uint8_t PublicString = 0x22;

std::string messageIn(const char* format, const std::uint8_t* buffer, std::uint32_t size) {
    const char* text = nullptr;
    const bool isOnePublicString = std::string_view(format) == "%{public}s" && size == 4 + sizeof(text) &&
                                   buffer[0] == HasNonScalar && buffer[1] == 1 && buffer[2] == PublicString &&
                                   buffer[3] == sizeof(text);
    if (!isOnePublicString) {
        fatal("A message to the unified log is not one public string.");
    }
    std::memcpy(&text, buffer + 4, sizeof(text));
    return text;
}

constexpr std::uint8_t Debug = 2;
constexpr std::uint8_t Error = 16;

void keep(LoggedMessage::Level level, os_log_t log, std::uint8_t type, const char* format,
          const std::uint8_t* buffer, std::uint32_t size) {
    if (type != (level == LoggedMessage::Level::error ? Error : Debug)) {
        fatal("A message to the unified log has another type than its function.");
    }
    loggedMessages().push_back({level, log->subsystem, log->category, messageIn(format, buffer, size)});
}

} // namespace

std::vector<LoggedMessage>& loggedMessages() {
    static std::vector<LoggedMessage> messages;
    return messages;
}

extern "C" {

os_log_t os_log_create(const char* subsystem, const char* category) {
    static std::vector<std::unique_ptr<os_log_s>> logs;
    return logs.emplace_back(new os_log_s{subsystem, category}).get();
}

bool os_log_type_enabled(os_log_t /*log*/, std::uint8_t /*type*/) { return true; }

void _os_log_debug_impl(void* /*image*/, os_log_t log, std::uint8_t type, const char* format,
                        std::uint8_t* buffer, std::uint32_t size) {
    keep(LoggedMessage::Level::debug, log, type, format, buffer, size);
}

void _os_log_error_impl(void* /*image*/, os_log_t log, std::uint8_t type, const char* format,
                        std::uint8_t* buffer, std::uint32_t size) {
    keep(LoggedMessage::Level::error, log, type, format, buffer, size);
}

} // extern "C"

} // namespace kestrune::gnustep
