// What the application has logged.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kestrune::sim {

enum class LogLevel { debug, info, error };

struct LogRecord {
    LogLevel level;
    std::string subsystem;
    std::string category;
    std::string message;
    std::string format; // the message itself when it has no argument
};

class LogRecords {
public:
    void append(LogRecord record) { all_.push_back(std::move(record)); }
    const std::vector<LogRecord>& all() const { return all_; }

private:
    std::vector<LogRecord> all_;
};

} // namespace kestrune::sim
