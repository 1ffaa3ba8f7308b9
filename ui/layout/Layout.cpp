#include "ui/layout/Layout.h"

#include "ui/layout/Node.h"

namespace kestrune::ui {

Rendering layOut(const View& view, const ProposedSize& proposal, const LayoutContext& context) {
    LayoutPass pass{context, MeasuredTexts(context.measurer)};
    const LayoutItemPointer item = resolve(view, Environment{}, pass);
    Rendering rendering;
    rendering.scene.size = item->sizeThatFits(proposal);
    item->place({0, 0}, proposal, rendering);
    return rendering;
}

} // namespace kestrune::ui
