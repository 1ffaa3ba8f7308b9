#include "sim/services/Journal.h"

#include <array>
#include <charconv>
#include <utility>

namespace kestrune::sim {

std::vector<std::string> Journal::take() { return std::exchange(lines_, {}); }

void Journal::append(std::string& line, double number) {
    std::array<char, 32> text;
    const std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), number);
    line.append(text.data(), result.ptr);
}

void Journal::append(std::string& line, Point point) {
    line += '(';
    append(line, point.x);
    line += ", ";
    append(line, point.y);
    line += ')';
}

} // namespace kestrune::sim
