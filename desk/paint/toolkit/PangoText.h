// What all text on the desk has in common, whatever lays it out.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "ui/Font.h"

namespace kestrune::desk {

// Inter, or the system's sans-serif where Inter is not installed.
inline constexpr const char* TextFamily = "Inter, sans-serif";

// Measures and paints at every scale alike: with unhinted outlines at fractional positions, which also keep
// the spacing that the typeface was drawn with. `context` must outlive it.
TextLayoutHandle makeTextLayout(cairo_t* context);

// In Pango's units, for a font size in user units. Larger text is set tighter.
int letterSpacing(double size);

PangoWeight pangoWeight(ui::FontWeight weight);

double fromPango(int units);

// -1, which Pango takes for no limit, for what is not finite or too long.
int toPango(double units);

// In user units.
Size textSize(PangoLayout* layout);

// Paints the layout's text in the context's colour from the context's current point.
void fillTextLayout(cairo_t* context, PangoLayout* layout);

} // namespace kestrune::desk
