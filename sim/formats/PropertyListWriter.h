// Writes property lists in their XML form.
#pragma once

#include "sim/formats/PropertyList.h"

#include <string>

namespace kestrune::sim {

// A whole document with one value, UTF-8, ending in a line feed.
std::string writePropertyList(const PropertyList& list);

} // namespace kestrune::sim
