// Drawings of a scene, drawn by the program itself.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "ui/Scene.h"

#include <vector>

namespace kestrune::mac {

// Into the view that is being drawn, whose y grows downwards and whose origin is that point of the content.
// Colours are looked up now, for the appearance of the view. `opacity` is that of each drawing, from 0 for
// invisible to 1.
void draw(const std::vector<ui::Drawing>& drawings, Point origin, double opacity = 1);

// The area of a shape, with whatever colour is set.
void fillMask(const ui::ShapeElement& shape, Point origin);

// `isFlipped` of a view that draws them.
BOOL alwaysFlipped(id view, SEL selector) noexcept;

} // namespace kestrune::mac
