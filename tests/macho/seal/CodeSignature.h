// The code signature of one program, as a system reads it before it runs the program.
#pragma once

#include "tests/macho/MachSlice.h"
#include "tests/macho/seal/Digest.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrune::macho {

// Where a code directory has the hash of something that is no page.
enum class Slot : std::uint32_t { information = 1, requirements = 2, resources = 3 };

// Read for what it says; verifyCode() compares it with the program. All that is borrowed is borrowed from the
// slice.
struct CodeSignature {
    static constexpr std::uint32_t AdHoc = 0x2;
    static constexpr std::uint64_t MainProgram = 0x1;

    std::string identifier;
    std::uint32_t flags = 0;
    std::uint64_t codeSize = 0;
    std::uint64_t pageSize = 0;
    std::uint64_t textSize = 0;
    std::uint64_t textFlags = 0;
    std::vector<std::span<const std::uint8_t>> pages;                   // their hashes
    std::map<std::uint32_t, std::span<const std::uint8_t>> specials;    // the hashes by slot
    std::map<std::uint32_t, std::span<const std::uint8_t>> attachments; // blobs by slot, with their headers
    std::array<std::uint8_t, 20> cdhash{};

    // Whether the slot is the hash of the data; without data, whether it says that there is none.
    bool covers(Slot slot, std::optional<std::span<const std::uint8_t>> data) const;
};

// Throws SealError for a program without one, and MachError for one that cannot be read.
CodeSignature readCodeSignature(const MachSlice& slice);

// Throws SealError for the first page that is not what was signed. It is all that a linker's signature has.
void verifyPages(const CodeSignature& signature, const MachSlice& slice);

// The same also for the parts of the signature.
void verifyCode(const CodeSignature& signature, const MachSlice& slice);

} // namespace kestrune::macho
