// How the platform writes texts into URLs.
//
// Source: docs/MAC_FACTS.md, "URLs".
#pragma once

#include <string>
#include <string_view>

namespace kestrune::sim {

// A name or a value of a query item, and a path. UTF-8.
std::string encodedQueryText(std::string_view text);
std::string encodedPath(std::string_view text);

} // namespace kestrune::sim
