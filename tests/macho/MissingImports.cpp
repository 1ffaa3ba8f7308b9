#include "tests/macho/MissingImports.h"

#include <optional>

namespace kestrune::macho {

namespace {

// What any library may have, the loader would look for in all of them at every start.
std::optional<std::string> reasonAgainst(const MachSlice& slice, const Import& import,
                                         const TextStubs& stubs) {
    if (import.ordinal <= 0) {
        return printable(import.name) + " from no library in particular";
    }
    const std::string_view library =
        slice.libraries()[static_cast<std::size_t>(import.ordinal) - 1].installName;
    if (!stubs.knows(library)) {
        return "from " + printable(library) + ", which no stub is about";
    }
    if (!stubs.has(library, import.name, slice.processor())) {
        return printable(import.name) + ", which is not in the stub of " + printable(library);
    }
    return std::nullopt;
}

} // namespace

std::vector<std::string> missingImports(const MachSlice& slice, const std::vector<Import>& imports,
                                        const TextStubs& stubs) {
    std::vector<std::string> missing;
    for (const Import& import : imports) {
        if (const auto reason = reasonAgainst(slice, import, stubs)) {
            missing.push_back(slice.name() + ": imports " + *reason);
        }
    }
    return missing;
}

} // namespace kestrune::macho
