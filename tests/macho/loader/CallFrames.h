// Call frame information as DWARF has it, which GCC's unwinder reads.
//
// Source: DWARF 5, section 6.4; Linux Standard Base, Exception Frames.
#pragma once

#include "tests/macho/loader/Frames.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace kestrune::macho {

// Writes a section .eh_frame, one function after the other.
class CallFrames {
public:
    // The image as it is in memory, which is borrowed.
    CallFrames(const Bytes& image, Processor processor) : image_(image), rules_(frameRulesOf(processor)) {}

    // Throws MachError for an encoding that the processor has not. One that says that nothing is to be done,
    // or that DWARF has it already, adds nothing.
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
    void describe(const Frame& frame);
    void isSaved(const SavedRegister& saved);

    std::uint64_t addressOf(std::uint32_t place) const;

    const Bytes& image_;
    const FrameRules& rules_;
    std::map<std::optional<std::uint32_t>, std::size_t> commonEntries_; // by personality
    std::vector<std::uint8_t> bytes_;
};

} // namespace kestrune::macho
