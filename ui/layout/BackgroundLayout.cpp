#include "ui/View.h"
#include "ui/layout/Node.h"

#include <memory>
#include <utility>

namespace kestrune::ui {

namespace {

class BackgroundItem final : public LayoutItem {
public:
    BackgroundItem(LayoutItemPointer content, LayoutItemPointer behind, const Alignment& alignment)
        : content_(std::move(content)), behind_(std::move(behind)), alignment_(alignment) {}

private:
    Size measure(const ProposedSize& proposal) override { return content_->sizeThatFits(proposal); }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        const Size room = content_->sizeThatFits(proposal);
        const ProposedSize offered{room.width, room.height};
        behind_->place(aligned(origin, room, behind_->sizeThatFits(offered), alignment_), offered, rendering);
        content_->place(origin, proposal, rendering);
    }

    LayoutItemPointer content_;
    LayoutItemPointer behind_;
    Alignment alignment_;
};

struct BackgroundNode final : Node {
    BackgroundNode(View inFront, View inTheBack, const Alignment& where)
        : content(std::move(inFront)), behind(std::move(inTheBack)), alignment(where) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<BackgroundItem>(content.node().resolve(environment, pass),
                                                behind.node().resolve(environment, pass), alignment);
    }

    View content;
    View behind;
    Alignment alignment;
};

} // namespace

View View::background(const View& behind, Alignment alignment) const {
    return View(std::make_shared<BackgroundNode>(*this, behind, alignment));
}

} // namespace kestrune::ui
