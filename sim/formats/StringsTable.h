// Reads string tables, the `.strings` files of a bundle.
//
// Source: developer.apple.com, Resource Programming Guide, String Resources.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace kestrune::sim {

using StringsTable = std::map<std::string, std::string, std::less<>>;

struct StringsTableError {
    std::size_t line; // counted from 1
    std::string message;
};

// The entries `"key" = "value";` of a table in UTF-8, between comments in the manner of C. Inside the quotes
// \" stands for a quote, \\ for a backslash and \n for a line end.
std::variant<StringsTable, StringsTableError> readStringsTable(std::string_view text);

} // namespace kestrune::sim
