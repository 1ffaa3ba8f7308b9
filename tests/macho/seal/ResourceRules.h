// Which files of a bundle its seal covers, and how. The rules stand in every seal, and a system takes no
// others.
#pragma once

#include "tests/macho/seal/PropertyListFile.h"

#include <string>

namespace kestrune::macho {

struct Treatment {
    bool isSealed = false;
    bool isOptional = false; // may be missing, but not be another one
    bool isCode = false;     // has a seal of its own
};

// By the rules of today, and by those that came before them and know no code.
Treatment treatmentOf(const std::string& path);
Treatment oldTreatmentOf(const std::string& path);

// The rules as a seal has to state them, under "rules2" and "rules".
const PropertyValue& statedRules();
const PropertyValue& statedOldRules();

} // namespace kestrune::macho
