// From a view to a scene, by SwiftUI's rule: a parent proposes a size, the child chooses its own, the parent
// places it.
#pragma once

#include "base/Geometry.h"
#include "ui/Scene.h"
#include "ui/View.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::ui {

// How large things are on the platform. Answers must depend on the arguments alone while a rendering is made.
// Points, not necessarily whole: the layout rounds up.
class Measurer {
public:
    virtual ~Measurer() = default;

    // Without a width the text is laid out on one line for each of its paragraphs; with one, of at least one
    // point, it wraps at it, as late as possible. The size may be wider than the width when a word is.
    virtual Size measureText(const StyledText& text, std::optional<double> width) const = 0;

    virtual Size measureSymbol(const StyledSymbol& symbol) const = 0;

    // The system's push button with that title, and its switch.
    virtual Size measurePushButton(std::string_view title, ControlSize size) const = 0;
    virtual Size measureSwitch(ControlSize size) const = 0;

protected:
    Measurer() = default;
    Measurer(const Measurer&) = default;
    Measurer& operator=(const Measurer&) = default;
};

struct LayoutContext {
    const Measurer& measurer;

    // The text for a key in the user's language, markdown and placeholders included.
    std::function<std::string(std::string_view key)> localize;

    // In the user's language.
    std::function<std::string(std::string_view text)> uppercase;
};

// What a parent offers; absent asks for the ideal size.
struct ProposedSize {
    std::optional<double> width = std::nullopt;
    std::optional<double> height = std::nullopt;
};

// The scene is as large as the view chose to be. The proposal is finite.
Rendering layOut(const View& view, const ProposedSize& proposal, const LayoutContext& context);

} // namespace kestrune::ui
