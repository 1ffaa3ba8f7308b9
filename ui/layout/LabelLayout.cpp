#include "ui/View.h"
#include "ui/layout/Node.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

namespace kestrune::ui {

namespace {

constexpr double Gap = 6;

// Labels under one another have their titles at the same place: symbols up to this width lie in the middle of
// a slot. In ems of the label's font, in which the round symbols take about 1.2.
constexpr double SlotWidthInEms = 1.25;

class LabelItem final : public LayoutItem {
public:
    LabelItem(LayoutItemPointer symbol, LayoutItemPointer title, double fontSize)
        : symbol_(std::move(symbol)),
          title_(std::move(title)),
          symbolSize_(symbol_->sizeThatFits({})),
          slotWidth_(std::max(symbolSize_.width, std::ceil(fontSize * SlotWidthInEms))),
          firstLineHeight_(title_->sizeThatFits({}).height) {}

private:
    Size measure(const ProposedSize& proposal) override {
        const Size title = title_->sizeThatFits(besideSymbol(proposal));
        return {slotWidth_ + Gap + title.width,
                std::max(symbolTop() + symbolSize_.height, titleTop() + title.height)};
    }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        symbol_->place({origin.x + (slotWidth_ - symbolSize_.width) / 2, origin.y + symbolTop()}, {},
                       rendering);
        title_->place({origin.x + slotWidth_ + Gap, origin.y + titleTop()}, besideSymbol(proposal),
                      rendering);
    }

    ProposedSize besideSymbol(const ProposedSize& proposal) const {
        return {proposal.width ? std::optional(*proposal.width - slotWidth_ - Gap) : std::nullopt,
                proposal.height};
    }

    // The symbol stands beside the first line, the lower of both in the middle of the other.
    double symbolTop() const { return std::max(0.0, (firstLineHeight_ - symbolSize_.height) / 2); }
    double titleTop() const { return std::max(0.0, (symbolSize_.height - firstLineHeight_) / 2); }

    LayoutItemPointer symbol_;
    LayoutItemPointer title_;
    Size symbolSize_;
    double slotWidth_;
    double firstLineHeight_;
};

struct LabelNode final : Node {
    LabelNode(std::string_view titleKey, std::string_view systemImage)
        : title(Text(titleKey)), symbol(SystemImage(systemImage)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<LabelItem>(symbol.node().resolve(environment, pass),
                                           title.node().resolve(environment, pass),
                                           environment.effectiveFont().size);
    }

    View title;
    View symbol;
};

} // namespace

View Label(std::string_view titleKey, std::string_view systemImage) {
    return View(std::make_shared<LabelNode>(titleKey, systemImage));
}

} // namespace kestrune::ui
