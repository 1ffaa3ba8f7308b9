// SF Symbols.
#pragma once

#include "mac/objc/Retained.h"
#include "ui/Scene.h"

namespace kestrune::mac {

// A template image in the size that the symbol has with its font; empty when the platform has none of that
// name.
Retained symbolImage(const ui::StyledSymbol& symbol);

// Into the view that is being drawn, in the middle of the frame and in the symbol's colour. `opacity` is from
// 0 for invisible to 1.
void drawSymbol(const ui::StyledSymbol& symbol, const Rect& frame, double opacity);

} // namespace kestrune::mac
