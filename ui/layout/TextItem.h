// A text on its way to the scene.
#pragma once

#include "ui/layout/LayoutItem.h"
#include "ui/layout/MeasuredText.h"

#include <memory>
#include <optional>

namespace kestrune::ui {

class TextItem final : public LeafItem {
public:
    TextItem(StyledText text, bool isAccessibilityHidden, MeasuredTexts& texts);

private:
    // A text is never cut: it takes the height of its lines, whatever height it is offered.
    Size measure(const ProposedSize& proposal) override;
    void show(const Rect& frame, Rendering& rendering) override;

    StyledText text_;
    bool isAccessibilityHidden_;
    std::shared_ptr<MeasuredText> measured_;
};

} // namespace kestrune::ui
