#include "platform/Log.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/LogRecords.h"

#include <string>

namespace kestrune {

struct Log::State {
    std::string subsystem;
    std::string category;

    void append(std::string_view function, sim::LogLevel level, std::string_view message,
                std::string_view format) const {
        sim::recordCall(function, "(", category, ", ", message, ")");
        sim::current<sim::LogRecords>().append(
            {level, subsystem, category, std::string(message), std::string(format)});
    }

    void append(std::string_view function, sim::LogLevel level, LogMessage message) const {
        append(function, level, message.text(), message.text());
    }

    void append(std::string_view function, sim::LogLevel level, LogFormat format,
                std::string_view publicString) const {
        std::string message = format.text();
        message.replace(message.find(LogFormat::Placeholder), LogFormat::Placeholder.size(), publicString);
        append(function, level, message, format.text());
    }
};

Log::Log(std::string_view subsystem, std::string_view category)
    : state_(std::make_shared<State>(State{std::string(subsystem), std::string(category)})) {
    sim::recordCall("os_log_create(", subsystem, ", ", category, ")");
}

void Log::debug(LogMessage message) const { state_->append("os_log_debug", sim::LogLevel::debug, message); }

void Log::error(LogMessage message) const { state_->append("os_log_error", sim::LogLevel::error, message); }

void Log::info(LogFormat format, std::string_view publicString) const {
    state_->append("os_log_info", sim::LogLevel::info, format, publicString);
}

void Log::error(LogFormat format, std::string_view publicString) const {
    state_->append("os_log_error", sim::LogLevel::error, format, publicString);
}

} // namespace kestrune
