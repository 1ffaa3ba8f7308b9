#include "platform/Log.h"

#include "base/Fatal.h"
#include "sim/Session.h"

#include <string>

namespace kestrune {

struct Log::State {
    std::string subsystem;
    std::string category;

    void append(std::string_view function, sim::LogLevel level, std::string_view message) const {
        sim::Session& session = sim::Session::current();
        session.journal().record(function, "(", category, ", ", message, ")");
        session.appendLogRecord({level, subsystem, category, std::string(message)});
    }
};

namespace {

std::string filled(LogFormat format, std::string_view publicString) {
    constexpr std::string_view Placeholder = "%{public}s";
    std::string message = format.text();
    const std::size_t place = message.find(Placeholder);
    if (place == std::string::npos) {
        fatal("A format of the log has no place for its text.");
    }
    return message.replace(place, Placeholder.size(), publicString);
}

} // namespace

Log::Log(std::string_view subsystem, std::string_view category)
    : state_(std::make_shared<State>(State{std::string(subsystem), std::string(category)})) {
    sim::Session::current().journal().record("os_log_create(", subsystem, ", ", category, ")");
}

void Log::debug(std::string_view message) const {
    state_->append("os_log_debug", sim::LogLevel::debug, message);
}

void Log::error(std::string_view message) const {
    state_->append("os_log_error", sim::LogLevel::error, message);
}

void Log::info(LogFormat format, std::string_view publicString) const {
    state_->append("os_log_info", sim::LogLevel::info, filled(format, publicString));
}

void Log::error(LogFormat format, std::string_view publicString) const {
    state_->append("os_log_error", sim::LogLevel::error, filled(format, publicString));
}

} // namespace kestrune
