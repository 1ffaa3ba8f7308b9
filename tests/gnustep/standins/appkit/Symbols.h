// Symbols of the system, and what an image shows of them.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <optional>
#include <string>

namespace kestrune::gnustep {

void installSymbols();

// What a symbol has without a configuration is what it has beside a text in the body's font.
struct SymbolConfiguration {
    double pointSize = 13;
    double weight = 0;      // as NSFontWeight
    mac::Integer scale = 2; // as NSImageSymbolScale

    friend bool operator==(const SymbolConfiguration&, const SymbolConfiguration&) = default;
};

struct ShownSymbol {
    std::string name;
    SymbolConfiguration configuration;
    id tint; // nil: none, as it is a template
};

// Absent for an image of something else, and for none.
std::optional<ShownSymbol> symbolIn(id image);

} // namespace kestrune::gnustep
