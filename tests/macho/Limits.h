// What the shipped program may cost, and what it may expect of a system.
#pragma once

#include "tests/macho/MachSlice.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::macho {

struct Limits {
    std::uint64_t bytes = 900'000;
    std::size_t initializers = 60; // functions that run before main
    std::size_t imports = 170;
    Version minimumSystem{13, 0, 0};
};

// What each library of the platform has: install names, and in them the names of symbols.
class ExportLists {
public:
    // The text of a list: "install-name: NAME", and then a symbol in each line, with a processor behind it
    // where it is there for that one only. Lines that start with # are comments. Throws MachError, with the
    // name.
    void add(std::string_view text, const std::string& name);

    bool knows(std::string_view library) const { return libraries_.contains(std::string(library)); }
    bool has(std::string_view library, std::string_view symbol, Processor processor) const;
    bool hasInAny(std::string_view symbol, Processor processor) const;

private:
    // Symbols, each with the processors that it is there for.
    std::map<std::string, std::map<std::string, std::set<Processor>, std::less<>>> libraries_;
};

struct Measures {
    std::uint64_t bytes = 0;
    std::size_t initializers = 0;
    std::size_t imports = 0;
    Version minimumSystem;
    std::vector<std::string> violations; // each a line, empty when everything is within its limits
};

// Throws MachError for a program that cannot be read.
Measures measure(const MachSlice& slice, const Limits& limits, const ExportLists& exports);

} // namespace kestrune::macho
