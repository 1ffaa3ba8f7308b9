#include "platform/Log.h"

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

} // namespace kestrune
