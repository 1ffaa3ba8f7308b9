#include "ui/TextFormat.h"

#include <charconv>

namespace kestrune::ui {

// What stands there, and what is shown for it.
struct TextFormat::Placeholder {
    std::size_t length;
    std::string_view replacement;
};

TextFormat::Placeholder TextFormat::placeholderAt(std::string_view text, std::size_t percent) {
    const std::string_view rest = text.substr(percent);
    if (rest.starts_with("%%")) {
        return {2, "%"};
    }
    if (rest.starts_with("%@") && next_ < arguments_.size()) {
        return {2, arguments_[next_++]};
    }
    std::size_t position = 0;
    const char* const end = rest.data() + rest.size();
    const auto [behind, error] = std::from_chars(rest.data() + 1, end, position);
    const std::string_view sign(behind, static_cast<std::size_t>(end - behind));
    if (error == std::errc() && sign.starts_with("$@") && position >= 1 && position <= arguments_.size()) {
        return {static_cast<std::size_t>(behind - rest.data()) + 2, arguments_[position - 1]};
    }
    return {1, "%"};
}

std::string TextFormat::fill(std::string_view text) {
    if (arguments_.empty()) {
        return std::string(text);
    }
    std::string filled;
    std::size_t written = 0;
    std::size_t percent = text.find('%');
    while (percent != std::string_view::npos) {
        const Placeholder placeholder = placeholderAt(text, percent);
        filled += text.substr(written, percent - written);
        filled += placeholder.replacement;
        written = percent + placeholder.length;
        percent = text.find('%', written);
    }
    filled += text.substr(written);
    return filled;
}

} // namespace kestrune::ui
