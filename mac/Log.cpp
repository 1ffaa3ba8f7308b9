#include "platform/Log.h"

#include "mac/c/UnifiedLog.h"

#include <array>
#include <cstring>
#include <string>

namespace kestrune {

namespace {

constexpr std::uint8_t InfoType = 0x01;
constexpr std::uint8_t DebugType = 0x02;
constexpr std::uint8_t ErrorType = 0x10;

// No arguments: none of a special kind, and none at all.
constexpr std::array<std::uint8_t, 2> NoArguments = {0, 0};

// The arguments of a format with one "%{public}s": one that is no scalar, a public string, eight bytes long.
class PublicArgument {
public:
    explicit PublicArgument(const char* text) {
        constexpr std::array<std::uint8_t, 4> Head = {0x02, 0x01, 0x22, 0x08};
        static_assert(sizeof(text) == 8);
        std::memcpy(bytes_.data(), Head.data(), Head.size());
        std::memcpy(bytes_.data() + Head.size(), &text, sizeof(text));
    }

    std::uint8_t* bytes() { return bytes_.data(); }
    static constexpr std::uint32_t Size = 12;

private:
    alignas(16) std::array<std::uint8_t, Size> bytes_{};
};

void write(os_log_t log, std::uint8_t type, OSLogFunction* function, LogMessage message) {
    if (!os_log_type_enabled(log, type)) {
        return;
    }
    alignas(16) auto arguments = NoArguments;
    function(&__dso_handle, log, type, message.text(), arguments.data(), arguments.size());
}

void write(os_log_t log, std::uint8_t type, OSLogFunction* function, LogFormat format,
           std::string_view publicString) {
    if (!os_log_type_enabled(log, type)) {
        return;
    }
    const std::string text(publicString);
    PublicArgument argument(text.c_str());
    function(&__dso_handle, log, type, format.text(), argument.bytes(), PublicArgument::Size);
}

} // namespace

// The system keeps log objects for ever.
struct Log::State {
    os_log_t log;
};

Log::Log(std::string_view subsystem, std::string_view category)
    : state_(std::make_shared<State>(
          State{os_log_create(std::string(subsystem).c_str(), std::string(category).c_str())})) {}

void Log::debug(LogMessage message) const { write(state_->log, DebugType, _os_log_debug_impl, message); }

void Log::error(LogMessage message) const { write(state_->log, ErrorType, _os_log_error_impl, message); }

void Log::info(LogFormat format, std::string_view publicString) const {
    write(state_->log, InfoType, _os_log_impl, format, publicString);
}

void Log::error(LogFormat format, std::string_view publicString) const {
    write(state_->log, ErrorType, _os_log_error_impl, format, publicString);
}

} // namespace kestrune
