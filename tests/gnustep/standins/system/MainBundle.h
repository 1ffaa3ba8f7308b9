// The application's bundle.
#pragma once

#include "tests/contract/World.h"

#include <string>

namespace kestrune::gnustep {

void installMainBundle();

// Writes the files into a folder of their own below `parent`; from now on that is the main bundle.
void setMainBundle(const contract::BundleFiles& files, const std::string& parent);

} // namespace kestrune::gnustep
