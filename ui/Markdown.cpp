#include "ui/Markdown.h"

namespace kestrune::ui {

namespace {

constexpr std::string_view Mark = "**";

bool isSpace(char character) { return character == ' ' || character == '\n' || character == '\t'; }

// Where the bold part that begins at `start` ends; npos when nothing ends it.
std::size_t endOfBold(std::string_view text, std::size_t start) {
    if (start >= text.size() || isSpace(text[start])) {
        return std::string_view::npos;
    }
    std::size_t end = text.find(Mark, start + 1);
    while (end != std::string_view::npos && isSpace(text[end - 1])) {
        end = text.find(Mark, end + Mark.size());
    }
    return end;
}

void append(std::vector<MarkdownPart>& parts, std::string_view text, bool isBold) {
    if (!text.empty()) {
        parts.push_back({std::string(text), isBold});
    }
}

} // namespace

std::vector<MarkdownPart> parseMarkdown(std::string_view text) {
    std::vector<MarkdownPart> parts;
    std::size_t plain = 0;
    std::size_t mark = text.find(Mark);
    while (mark != std::string_view::npos) {
        const std::size_t start = mark + Mark.size();
        const std::size_t end = endOfBold(text, start);
        if (end == std::string_view::npos) {
            mark = text.find(Mark, start);
            continue;
        }
        append(parts, text.substr(plain, mark - plain), false);
        append(parts, text.substr(start, end - start), true);
        plain = end + Mark.size();
        mark = text.find(Mark, plain);
    }
    append(parts, text.substr(plain), false);
    return parts;
}

} // namespace kestrune::ui
