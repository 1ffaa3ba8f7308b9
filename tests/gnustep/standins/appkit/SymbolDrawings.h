// Drawings of the harness's own for the symbols that the application names.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <optional>
#include <string_view>

namespace kestrune::gnustep {

// The width of a symbol by its height; absent for a name that has no drawing.
std::optional<double> symbolAspect(std::string_view name);

// Into a box of that height whose y grows upwards. The weight is an NSFontWeight.
void drawSymbolNamed(std::string_view name, double height, double weight, id color);

} // namespace kestrune::gnustep
