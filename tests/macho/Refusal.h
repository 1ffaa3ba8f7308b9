// For tests of what is refused: changes in the bytes of a file, and the message that they lead to.
#pragma once

#include "tests/macho/Bytes.h"
#include "tests/macho/MachFile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace kestrune::macho {

using Content = std::vector<std::uint8_t>;

// What is done to a good file, and what the reader says to it.
struct BrokenFile {
    const char* name;
    std::function<void(Content&)> breakIt;
    std::string message;
};

inline void PrintTo(const BrokenFile& example, std::ostream* output) { *output << example.name; }

inline std::string nameOfBroken(const testing::TestParamInfo<BrokenFile>& example) {
    return example.param.name;
}

template <std::unsigned_integral Number>
void poke(Content& bytes, std::uint64_t offset, std::type_identity_t<Number> number) {
    for (std::size_t index = 0; index < sizeof(Number); ++index) {
        bytes.at(static_cast<std::size_t>(offset) + index) = static_cast<std::uint8_t>(number >> (8 * index));
    }
}

// For the fields of universal files and of signatures, which have their highest byte first.
inline void pokeBig(Content& bytes, std::uint64_t offset, std::uint32_t number) {
    poke<std::uint32_t>(bytes, offset, __builtin_bswap32(number));
}

// The message of what the work throws, or none.
template <typename Work>
std::string refusalOf(Work work) {
    try {
        work();
    } catch (const MachError& error) {
        return error.what();
    }
    return "";
}

// Where a thin file has a load command.
inline std::uint64_t placeOf(const Content& bytes, Command kind) {
    return MachFile(bytes, "").slices().front().command(kind)->offset;
}

// Where it has the load command of a segment.
inline std::uint64_t placeOfSegment(const Content& bytes, std::string_view name) {
    const MachFile file(bytes, "");
    for (const LoadCommand& command : file.slices().front().commands()) {
        if (command.kind == Command::segment && command.content.paddedText(8, 16, "") == name) {
            return command.offset;
        }
    }
    return 0;
}

} // namespace kestrune::macho
