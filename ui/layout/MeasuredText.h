// Texts and their sizes during one layout. Measuring is what a layout costs, so equal texts share what is
// known about them, and no answer is asked for twice.
#pragma once

#include "base/Geometry.h"
#include "ui/Scene.h"
#include "ui/layout/Layout.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kestrune::ui {

class MeasuredText {
public:
    MeasuredText(const Measurer& measurer, StyledText text) : measurer_(measurer), text_(std::move(text)) {}

    // In whole points. A text that fits on one line for each of its paragraphs is not wrapped; one that wraps
    // takes all of the width, and more when a word needs it.
    Size size(std::optional<double> width);

    const StyledText& text() const { return text_; }

private:
    Size wrappedAt(double width);
    Size measure(std::optional<double> width) const;

    const Measurer& measurer_;
    StyledText text_;
    std::optional<Size> unwrapped_;
    std::vector<std::pair<double, Size>> wrapped_; // by the width that was offered
};

class MeasuredTexts {
public:
    explicit MeasuredTexts(const Measurer& measurer) : measurer_(measurer) {}

    // What is known about a text that has the size of this one. Colours and alignment have no influence.
    std::shared_ptr<MeasuredText> find(const StyledText& text);

private:
    const Measurer& measurer_;
    std::vector<std::shared_ptr<MeasuredText>> texts_;
};

} // namespace kestrune::ui
