#include "ui/View.h"
#include "ui/layout/Node.h"

#include <memory>
#include <utility>

namespace kestrune::ui {

namespace {

class PaddingItem final : public LayoutItem {
public:
    PaddingItem(LayoutItemPointer content, const EdgeInsets& insets)
        : content_(std::move(content)), insets_(insets) {}

private:
    Size measure(const ProposedSize& proposal) override {
        const Size content = content_->sizeThatFits(inside(proposal));
        return {content.width + insets_.leading + insets_.trailing,
                content.height + insets_.top + insets_.bottom};
    }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        content_->place({origin.x + insets_.leading, origin.y + insets_.top}, inside(proposal), rendering);
    }

    ProposedSize inside(ProposedSize proposal) const {
        if (proposal.width) {
            *proposal.width -= insets_.leading + insets_.trailing;
        }
        if (proposal.height) {
            *proposal.height -= insets_.top + insets_.bottom;
        }
        return proposal;
    }

    LayoutItemPointer content_;
    EdgeInsets insets_;
};

struct PaddingNode final : Node {
    PaddingNode(View inside, const EdgeInsets& around) : content(std::move(inside)), insets(around) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<PaddingItem>(content.node().resolve(environment, pass), insets);
    }

    View content;
    EdgeInsets insets;
};

} // namespace

View View::padding(double allEdges) const { return padding({allEdges, allEdges, allEdges, allEdges}); }

View View::padding(const EdgeInsets& insets) const {
    return View(std::make_shared<PaddingNode>(*this, insets));
}

} // namespace kestrune::ui
