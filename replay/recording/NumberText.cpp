#include "replay/recording/NumberText.h"

#include <array>
#include <charconv>

namespace kestrune::replay {

void append(double number, std::string& line) {
    std::array<char, 32> text; // At most 24 characters are needed.
    const std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), number);
    line.append(text.data(), result.ptr);
}

} // namespace kestrune::replay
