// Call frame information as DWARF has it, which GCC's unwinder reads.
//
// Source: DWARF 5, section 6.4; Linux Standard Base, Exception Frames; System V ABI for x86-64, numbers of
// registers.
#pragma once

#include "tests/macho/loader/CompactUnwind.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace kestrune::macho {

// Writes a section .eh_frame, one function after the other.
class CallFrames {
public:
    // The image as it is in memory, which is borrowed.
    explicit CallFrames(const Bytes& image) : image_(image) {}

    // For x86-64. Throws MachError for an encoding that it does not know. One that says that nothing is to be
    // done, or that DWARF has it already, adds nothing.
    void add(const UnwoundFunction& function);

    // With the end that the unwinder looks for.
    std::vector<std::uint8_t> finish();

private:
    template <typename Number>
    void put(Number number);
    void putLengthed(std::uint32_t number);
    std::size_t begin();
    void end(std::size_t start);

    std::size_t commonEntryFor(const std::optional<std::uint32_t>& personality);
    void frameIs(std::uint8_t reg, std::uint32_t distance);
    void isSaved(std::uint8_t reg, std::uint32_t words);
    void describeWithFramePointer(std::uint32_t encoding);
    void describeWithoutFramePointer(const UnwoundFunction& function, bool isSizeInCode);

    std::uint64_t addressOf(std::uint32_t place) const;

    const Bytes& image_;
    std::map<std::optional<std::uint32_t>, std::size_t> commonEntries_; // by personality
    std::vector<std::uint8_t> bytes_;
};

} // namespace kestrune::macho
