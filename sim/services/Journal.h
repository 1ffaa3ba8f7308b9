// Every platform call of a session in order, as readable text.
#pragma once

#include "base/Geometry.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::sim {

// Lines are named after the platform's functions and selectors, so that a test compares a procedure with what
// the platform would have been asked. While recording is off nothing is formatted or stored.
class Journal {
public:
    explicit Journal(bool recording) : recording_(recording) {}

    bool isRecording() const { return recording_; }
    void setRecording(bool recording) { recording_ = recording; }

    // Appends one line made of the parts: texts as they are, numbers in the shortest form that reads back
    // equal.
    template <typename... Parts>
    void record(const Parts&... parts) {
        if (!recording_) {
            return;
        }
        std::string line;
        (append(line, parts), ...);
        lines_.push_back(std::move(line));
    }

    const std::vector<std::string>& lines() const { return lines_; }

    // The lines so far; the journal starts again empty.
    std::vector<std::string> take();

private:
    static void append(std::string& line, std::string_view text) { line += text; }
    static void append(std::string& line, double number);
    static void append(std::string& line, Point point);
    // Templates, so that a string literal does not convert to a truth value or a number.
    template <std::same_as<bool> Flag>
    static void append(std::string& line, Flag flag) {
        line += flag ? "true" : "false";
    }

    template <std::integral Number>
    requires(!std::same_as<Number, bool>) static void append(std::string& line, Number number) {
        line += std::to_string(number);
    }

    bool recording_;
    std::vector<std::string> lines_;
};

} // namespace kestrune::sim
