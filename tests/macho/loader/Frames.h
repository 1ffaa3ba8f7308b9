// What the compact form says of a function's frame, by processor, in DWARF's numbers of registers.
#pragma once

#include "tests/macho/MachSlice.h"
#include "tests/macho/loader/CompactUnwind.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrune::macho {

struct SavedRegister {
    std::uint8_t number = 0;
    std::uint32_t words = 0; // so many below the frame's end

    friend bool operator==(const SavedRegister&, const SavedRegister&) = default;
};

// It ends so many bytes above what a register holds.
struct Frame {
    static constexpr std::uint32_t WordSize = 8;

    std::uint8_t base = 0;
    std::uint32_t distance = 0;
    std::vector<SavedRegister> saved;

    friend bool operator==(const Frame&, const Frame&) = default;
};

struct FrameRules {
    std::uint8_t returnAddress = 0;
    Frame atEntry;

    // Nothing for a function of which nothing is said, or which DWARF describes already. Throws MachError for
    // an encoding that it does not know. The image is as it is in memory.
    std::optional<Frame> (*frameOf)(const Bytes& image, const UnwoundFunction& function) = nullptr;
};

const FrameRules& frameRulesOf(Processor processor);

// For those who know the encodings of one processor.
FrameRules frameRulesOfArm64();
FrameRules frameRulesOfX86();
std::uint32_t bitsOf(std::uint32_t encoding, unsigned from, unsigned count);
[[noreturn]] void refuseEncoding(const Bytes& image, std::uint32_t encoding);

} // namespace kestrune::macho
