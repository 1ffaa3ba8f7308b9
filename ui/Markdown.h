// The inline markdown of localized texts.
//
// Two asterisks before and behind a part make it bold. They must touch the part, which must not be empty;
// asterisks without a partner, single ones and every other mark stay as they are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::ui {

struct MarkdownPart {
    std::string text;
    bool isBold = false;

    friend bool operator==(const MarkdownPart&, const MarkdownPart&) = default;
};

// No part is empty.
std::vector<MarkdownPart> parseMarkdown(std::string_view text);

} // namespace kestrune::ui
