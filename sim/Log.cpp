#include "platform/Log.h"

#include "sim/Session.h"

#include <string>

namespace kestrune {

struct Log::State {
    std::string subsystem;
    std::string category;
};

Log::Log(std::string_view subsystem, std::string_view category)
    : state_(std::make_shared<State>(State{std::string(subsystem), std::string(category)})) {
    sim::Session::current().journal().record("os_log_create(", subsystem, ", ", category, ")");
}

void Log::error(std::string_view message) const {
    sim::Session& session = sim::Session::current();
    session.journal().record("os_log_error(", state_->category, ", ", message, ")");
    session.appendLogRecord(
        {sim::LogLevel::error, state_->subsystem, state_->category, std::string(message)});
}

} // namespace kestrune
