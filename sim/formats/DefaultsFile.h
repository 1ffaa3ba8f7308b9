// A defaults domain in a file, so that it outlives the session: a property list in XML form.
#pragma once

#include "sim/formats/PropertyList.h"

#include <optional>
#include <string>
#include <variant>

namespace kestrune::sim {

// The entries in the file; none when there is no such file. The error is one line that names the file, the
// line where there is one, and what was expected.
std::variant<PropertyListDictionary, std::string> loadDefaultsFile(const std::string& path);

// Replaces the file as a whole: whoever reads it finds the old entries or the new ones. The error is one
// line.
std::optional<std::string> saveDefaultsFile(const std::string& path, const PropertyListDictionary& entries);

} // namespace kestrune::sim
