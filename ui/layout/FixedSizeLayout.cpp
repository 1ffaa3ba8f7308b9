#include "ui/View.h"
#include "ui/layout/Node.h"

#include <memory>
#include <utility>

namespace kestrune::ui {

namespace {

class FixedSizeItem final : public LayoutItem {
public:
    FixedSizeItem(LayoutItemPointer content, bool horizontal, bool vertical)
        : content_(std::move(content)), horizontal_(horizontal), vertical_(vertical) {}

private:
    Size measure(const ProposedSize& proposal) override { return content_->sizeThatFits(inside(proposal)); }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        content_->place(origin, inside(proposal), rendering);
    }

    ProposedSize inside(const ProposedSize& proposal) const {
        return {horizontal_ ? std::nullopt : proposal.width, vertical_ ? std::nullopt : proposal.height};
    }

    LayoutItemPointer content_;
    bool horizontal_;
    bool vertical_;
};

struct FixedSizeNode final : Node {
    FixedSizeNode(View inside, bool fixedWidth, bool fixedHeight)
        : content(std::move(inside)), horizontal(fixedWidth), vertical(fixedHeight) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<FixedSizeItem>(content.node().resolve(environment, pass), horizontal,
                                               vertical);
    }

    View content;
    bool horizontal;
    bool vertical;
};

} // namespace

View View::fixedSize(bool horizontal, bool vertical) const {
    return View(std::make_shared<FixedSizeNode>(*this, horizontal, vertical));
}

} // namespace kestrune::ui
