#include "ui/layout/MeasuredText.h"

#include <algorithm>
#include <cmath>

namespace kestrune::ui {

Size MeasuredText::size(std::optional<double> width) {
    if (text_.runs.empty()) {
        return {};
    }
    if (!unwrapped_) {
        unwrapped_ = measure(std::nullopt);
    }
    if (!width || *width >= unwrapped_->width) {
        return *unwrapped_;
    }
    // What stands under a text that wraps keeps its place however long its longest line is.
    const Size tight = wrappedAt(*width);
    return {std::max(*width, tight.width), tight.height};
}

Size MeasuredText::wrappedAt(double width) {
    // Lines break at the same places in every width between what was offered and what they took.
    const auto known = std::find_if(wrapped_.begin(), wrapped_.end(), [&](const auto& measured) {
        return width == measured.first || (width < measured.first && width >= measured.second.width);
    });
    if (known != wrapped_.end()) {
        return known->second;
    }
    wrapped_.emplace_back(width, measure(std::max(1.0, width)));
    return wrapped_.back().second;
}

Size MeasuredText::measure(std::optional<double> width) const {
    const Size measured = measurer_.measureText(text_, width);
    return {std::ceil(measured.width), std::ceil(measured.height)};
}

std::shared_ptr<MeasuredText> MeasuredTexts::find(const StyledText& text) {
    const auto known = std::find_if(texts_.begin(), texts_.end(), [&](const auto& measured) {
        return measured->text().font == text.font && measured->text().runs == text.runs;
    });
    if (known != texts_.end()) {
        return *known;
    }
    texts_.push_back(std::make_shared<MeasuredText>(measurer_, text));
    return texts_.back();
}

} // namespace kestrune::ui
