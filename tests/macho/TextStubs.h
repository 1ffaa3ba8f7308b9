// What the libraries of a system export, as Apple's text-based stubs (.tbd, version 4) say it.
//
// Source: LLVM, llvm/lib/TextAPI.
#pragma once

#include "tests/macho/FileTree.h"
#include "tests/macho/MachSlice.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace kestrune::macho {

// Install names, and in them the names of symbols.
class TextStubs {
public:
    // The text of a stub. Throws MachError, with the name.
    void add(const std::string& text, const std::string& name);

    // Those in a folder, wherever they lie in it.
    static TextStubs in(const FileTree& sdk);

    bool knows(std::string_view library) const { return libraries_.contains(library); }
    bool has(std::string_view library, std::string_view symbol, Processor processor) const;

private:
    using Symbols = std::map<std::string, std::set<Processor>, std::less<>>;

    std::map<std::string, Symbols, std::less<>> libraries_;
};

} // namespace kestrune::macho
