// What a text view shows: its key looked up, its arguments filled in, its markdown and its case applied.
#pragma once

#include "ui/Scene.h"
#include "ui/layout/Environment.h"
#include "ui/layout/Layout.h"

#include <span>
#include <string>
#include <string_view>

namespace kestrune::ui {

// No run is empty, and none follows one of its own weight.
StyledText localizedText(std::string_view key, std::span<const std::string> arguments,
                         const Environment& environment, const LayoutContext& context);

StyledText verbatimText(std::string_view text, const Environment& environment, const LayoutContext& context);

// What is read out for a control, and written on one that the platform draws: in the case of its writing,
// without markdown.
std::string controlTitle(std::string_view key, const LayoutContext& context);

} // namespace kestrune::ui
