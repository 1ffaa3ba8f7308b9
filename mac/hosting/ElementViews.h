// The kinds of views that elements become, still without the element.
#pragma once

#include "mac/hosting/ElementView.h"

#include <memory>

namespace kestrune::mac {

std::unique_ptr<ElementView> makeLabel();
std::unique_ptr<ElementView> makeSymbolView();
std::unique_ptr<ElementView> makeShapeView();
std::unique_ptr<ElementView> makePushButton(id target);
std::unique_ptr<ElementView> makeDrawnButton(id target);
std::unique_ptr<ElementView> makeSwitchView(id target);

} // namespace kestrune::mac
