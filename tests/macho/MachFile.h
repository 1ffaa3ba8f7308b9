// A Mach-O file: the program for one processor, or one for each of several.
#pragma once

#include "tests/macho/MachSlice.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kestrune::macho {

class MachFile {
public:
    // Reads the headers and the load commands of everything in it. The bytes are borrowed; `name` is what
    // messages call the file. Throws MachError.
    MachFile(std::span<const std::uint8_t> bytes, const std::string& name);

    // In the order of the file; at least one, none for the same processor as another.
    const std::vector<MachSlice>& slices() const { return slices_; }

    // Throws MachError when there is none.
    const MachSlice& slice(Processor processor) const;

private:
    void readUniversal(const Bytes& file);

    std::vector<MachSlice> slices_;
    std::string name_;
};

} // namespace kestrune::macho
