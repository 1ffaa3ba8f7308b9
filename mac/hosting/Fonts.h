// The platform's fonts.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "ui/Font.h"

namespace kestrune::mac {

// As NSFontWeight.
double platformWeight(ui::FontWeight weight);

// The system's font in the size of a view's font, borrowed from the innermost pool. Text styles have fixed
// sizes on the Mac, so it needs no style.
id platformFont(const ui::Font& font, ui::FontWeight weight);

} // namespace kestrune::mac
