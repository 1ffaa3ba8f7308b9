// The application's process, from its first object to its end, by itself or by force.
//
// Source: docs/MAC_FACTS.md, "The process".
#pragma once

#include "sim/formats/BundleContents.h"
#include "sim/services/ApplicationState.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace kestrune::sim {

class Process {
public:
    // `application` and `bundle` must outlive the process. `end` makes everything go that belongs to it.
    Process(ApplicationState& application, const BundleContents& bundle, std::function<void()> end)
        : application_(application), bundle_(bundle), end_(std::move(end)) {}

    // It has its shared application.
    void startApplication();

    // Its taps, timers, observers, status items and tasks go, and what is left of its objects has no effect
    // any more. Another process may start.
    void end() { end_(); }

    // What exists once in it, by the addresses that tell one from the other.
    std::map<const void*, std::shared_ptr<void>>& objects() { return objects_; }

    // What the report of a crash would say, empty for nothing.
    const std::string& crashReportMessage() const { return crashReportMessage_; }
    void setCrashReportMessage(const std::string& message) { crashReportMessage_ = message; }

private:
    ApplicationState& application_;
    const BundleContents& bundle_;
    std::function<void()> end_;
    std::map<const void*, std::shared_ptr<void>> objects_;
    std::string crashReportMessage_;
};

} // namespace kestrune::sim
