// The unified log.
//
// This is what we believe the Mac does, and no proof of it. The buffer is read as the compiler's builtins lay
// it out: flags, the number of arguments, and for each its kind and privacy, its size and its bytes.
//
// Source: os/trace_base.h; clang.llvm.org, lib/AST/OSLog.cpp.
#include "tests/gnustep/standins/system/UnifiedLog.h"

#include "base/Fatal.h"
#include "mac/c/UnifiedLog.h"
#include "platform/Log.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
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

void require(bool isAsItShouldBe, const char* otherwise) {
    if (!isAsItShouldBe) {
        fatal(std::string("The unified log: ") + otherwise + ".");
    }
}

// The log keeps a reference into the image that it is told of.
void requireInImage(const char* format, void* image) {
    Dl_info ofFormat{};
    Dl_info ofImage{};
    const bool isKnown = dladdr(format, &ofFormat) != 0 && dladdr(image, &ofImage) != 0;
    require(isKnown && ofFormat.dli_fbase == ofImage.dli_fbase,
            "a format does not lie in the image of the program");
}

bool hasNoArgument(const std::uint8_t* buffer, std::uint32_t size) {
    return size == 2 && buffer[0] == 0 && buffer[1] == 0;
}

// Null when the arguments are others than that one.
const char* publicStringIn(const std::uint8_t* buffer, std::uint32_t size) {
    const char* text = nullptr;
    if (size == 4 + sizeof(text) && buffer[0] == HasNonScalar && buffer[1] == 1 &&
        buffer[2] == PublicString && buffer[3] == sizeof(text)) {
        std::memcpy(&text, buffer + 4, sizeof(text));
    }
    return text;
}

// The log looks for an argument wherever there is a percent sign.
std::string messageIn(const char* format, const std::uint8_t* buffer, std::uint32_t size) {
    std::string message = format;
    const std::size_t place = message.find('%');
    if (place == std::string::npos) {
        require(hasNoArgument(buffer, size), "a format without arguments comes with some");
        return message;
    }
    require(message.find(LogFormat::Placeholder) == place &&
                message.find('%', place + 1) == std::string::npos,
            "a format wants something else than one public string");
    const char* const text = publicStringIn(buffer, size);
    require(text != nullptr, "the arguments are not the public string that the format wants");
    return message.replace(place, LogFormat::Placeholder.size(), text);
}

std::uint8_t typeOf(LoggedMessage::Level level) {
    switch (level) {
    case LoggedMessage::Level::info:
        return 1;
    case LoggedMessage::Level::debug:
        return 2;
    case LoggedMessage::Level::error:
        break;
    }
    return 16;
}

bool isLogEnabled = true; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void keep(LoggedMessage::Level level, void* image, os_log_t log, std::uint8_t type, const char* format,
          const std::uint8_t* buffer, std::uint32_t size) {
    require(type == typeOf(level), "a message has another type than its function");
    requireInImage(format, image);
    const std::string message = messageIn(format, buffer, size);
    loggedMessages().push_back({level, log->subsystem, log->category, message, format});
    // Whatever it is set to, the Mac's says everything on standard error as well.
    if (std::getenv("OS_ACTIVITY_DT_MODE") != nullptr) {
        std::fprintf(stderr, "[%s:%s] %s\n", log->subsystem.c_str(), log->category.c_str(), message.c_str());
    }
}

} // namespace

void setLogEnabled(bool isEnabled) { isLogEnabled = isEnabled; }

std::vector<LoggedMessage>& loggedMessages() {
    static std::vector<LoggedMessage> messages;
    return messages;
}

extern "C" {

os_log_t os_log_create(const char* subsystem, const char* category) {
    static std::vector<std::unique_ptr<os_log_s>> logs;
    return logs.emplace_back(new os_log_s{subsystem, category}).get();
}

bool os_log_type_enabled(os_log_t /*log*/, std::uint8_t /*type*/) { return isLogEnabled; }

void _os_log_impl(void* image, os_log_t log, std::uint8_t type, const char* format, std::uint8_t* buffer,
                  std::uint32_t size) {
    keep(LoggedMessage::Level::info, image, log, type, format, buffer, size);
}

void _os_log_debug_impl(void* image, os_log_t log, std::uint8_t type, const char* format,
                        std::uint8_t* buffer, std::uint32_t size) {
    keep(LoggedMessage::Level::debug, image, log, type, format, buffer, size);
}

void _os_log_error_impl(void* image, os_log_t log, std::uint8_t type, const char* format,
                        std::uint8_t* buffer, std::uint32_t size) {
    keep(LoggedMessage::Level::error, image, log, type, format, buffer, size);
}

} // extern "C"

} // namespace kestrune::gnustep
