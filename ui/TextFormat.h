// Arguments for the placeholders of a localized text.
//
// "%@" stands for the next argument, "%2$@" for the second one, "%%" for a percent sign. A text without
// arguments is no format and stays as it is, as does a placeholder without an argument.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kestrune::ui {

// Fills in one text after the other; "%@" goes on where the text before has ended.
class TextFormat {
public:
    // `arguments` must outlive the format.
    explicit TextFormat(std::span<const std::string> arguments) : arguments_(arguments) {}

    std::string fill(std::string_view text);

private:
    struct Placeholder;

    Placeholder placeholderAt(std::string_view text, std::size_t percent);

    std::span<const std::string> arguments_;
    std::size_t next_ = 0;
};

} // namespace kestrune::ui
