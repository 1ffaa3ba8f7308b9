#include "mac/hosting/ElementView.h"

#include "mac/hosting/ElementViews.h"

namespace kestrune::mac {

namespace {

struct Maker {
    id target;

    std::unique_ptr<ElementView> operator()(const ui::TextElement& /*element*/) const { return makeLabel(); }
    std::unique_ptr<ElementView> operator()(const ui::SymbolElement& /*element*/) const {
        return makeSymbolView();
    }
    std::unique_ptr<ElementView> operator()(const ui::ShapeElement& /*element*/) const {
        return makeShapeView();
    }
    std::unique_ptr<ElementView> operator()(const ui::ButtonElement& element) const {
        return element.kind == ui::ButtonElement::Kind::bordered ? makePushButton(target)
                                                                 : makeDrawnButton(target);
    }
    std::unique_ptr<ElementView> operator()(const ui::ToggleElement& /*element*/) const {
        return makeSwitchView(target);
    }
};

} // namespace

std::unique_ptr<ElementView> makeElementView(const ui::Element& element, id target) {
    std::unique_ptr<ElementView> view = std::visit(Maker{target}, element);
    view->show(element);
    return view;
}

} // namespace kestrune::mac
