// Reads property lists in their XML form.
//
// Source: the document type http://www.apple.com/DTDs/PropertyList-1.0.dtd.
#pragma once

#include "sim/formats/PropertyList.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace kestrune::sim {

struct PropertyListError {
    std::size_t line; // counted from 1
    std::string message;
};

// The list's one value, or where and why the text is not a property list.
std::variant<PropertyList, PropertyListError> readPropertyList(std::string_view xml);

} // namespace kestrune::sim
