#include "ui/layout/TextContent.h"

#include "ui/Markdown.h"
#include "ui/TextFormat.h"

#include <utility>

namespace kestrune::ui {

namespace {

StyledText withoutRuns(const Environment& environment) {
    StyledText styled;
    styled.font = environment.effectiveFont();
    styled.color = environment.foregroundColor();
    styled.alignment = environment.multilineTextAlignment;
    return styled;
}

void append(StyledText& styled, std::string text, FontWeight weight, const Environment& environment,
            const LayoutContext& context) {
    if (environment.textCase == TextCase::uppercase) {
        text = context.uppercase(text);
    }
    if (text.empty()) {
        return;
    }
    if (!styled.runs.empty() && styled.runs.back().weight == weight) {
        styled.runs.back().text += text;
    } else {
        styled.runs.push_back({std::move(text), weight});
    }
}

} // namespace

StyledText localizedText(std::string_view key, std::span<const std::string> arguments,
                         const Environment& environment, const LayoutContext& context) {
    StyledText styled = withoutRuns(environment);
    TextFormat format(arguments);
    for (const MarkdownPart& part : parseMarkdown(context.localize(key))) {
        append(styled, format.fill(part.text), part.isBold ? FontWeight::bold : styled.font.weight,
               environment, context);
    }
    return styled;
}

StyledText verbatimText(std::string_view text, const Environment& environment, const LayoutContext& context) {
    StyledText styled = withoutRuns(environment);
    append(styled, std::string(text), styled.font.weight, environment, context);
    return styled;
}

std::string controlTitle(std::string_view key, const LayoutContext& context) {
    std::string title;
    for (const MarkdownPart& part : parseMarkdown(context.localize(key))) {
        title += part.text;
    }
    return title;
}

} // namespace kestrune::ui
