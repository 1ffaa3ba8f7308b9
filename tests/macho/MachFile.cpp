#include "tests/macho/MachFile.h"

#include <algorithm>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t Universal = 0xCAFEBABE;
constexpr std::uint64_t UniversalHeaderSize = 8;
constexpr std::uint64_t EntrySize = 20;
// The number stands where a Java class has its version, from 45 on.
constexpr std::uint32_t MostSlices = 40;
constexpr std::uint32_t LargestAlignment = 15;

struct Extent {
    std::uint64_t start;
    std::uint64_t end;
};

bool overlap(const Extent& one, const Extent& other) {
    return one.start < other.end && other.start < one.end;
}

} // namespace

MachFile::MachFile(std::span<const std::uint8_t> bytes, const std::string& name) : name_(name) {
    const Bytes file(bytes, name);
    if (file.big<std::uint32_t>(0, "the magic number") == Universal) {
        readUniversal(file);
    } else {
        slices_.emplace_back(file);
    }
}

void MachFile::readUniversal(const Bytes& file) {
    const auto count = file.big<std::uint32_t>(4, "the number of halves");
    if (count == 0 || count > MostSlices) {
        file.refuse("is no Mach-O file: it would hold programs for " + std::to_string(count) + " processors");
    }
    std::vector<Extent> taken{{0, UniversalHeaderSize + count * EntrySize}};
    for (std::uint32_t index = 0; index < count; ++index) {
        const std::uint64_t entry = UniversalHeaderSize + index * EntrySize;
        const auto kind = file.big<std::uint32_t>(entry, "the table of halves");
        const auto offset = file.big<std::uint32_t>(entry + 8, "the table of halves");
        const auto size = file.big<std::uint32_t>(entry + 12, "the table of halves");
        const auto alignment = file.big<std::uint32_t>(entry + 16, "the table of halves");
        const Processor processor = processorOfKind(kind, file);
        const std::string half = std::string(nameOf(processor)) + " half";
        if (alignment > LargestAlignment || offset % (1U << alignment) != 0) {
            file.refuse(half + ": starts at " + hexadecimal(offset) + ", which is no multiple of 2^" +
                        std::to_string(alignment));
        }
        const Extent extent{offset, std::uint64_t{offset} + size};
        if (std::any_of(taken.begin(), taken.end(), [&](const Extent& o) { return overlap(o, extent); })) {
            file.refuse(half + ": lies over another part of the file at " + hexadecimal(offset));
        }
        taken.push_back(extent);
        const MachSlice slice(file.part(offset, size, "the " + half).named(half));
        if (slice.processor() != processor) {
            file.refuse(half + ": is a program for " + std::string(nameOf(slice.processor())));
        }
        for (const MachSlice& other : slices_) {
            if (other.processor() == processor) {
                file.refuse(half + ": is there twice");
            }
        }
        slices_.push_back(slice);
    }
}

const MachSlice& MachFile::slice(Processor processor) const {
    for (const MachSlice& slice : slices_) {
        if (slice.processor() == processor) {
            return slice;
        }
    }
    throw MachError(name_ + ": has no half for " + std::string(nameOf(processor)) + ", but one for " +
                    std::string(nameOf(slices_.front().processor())));
}

} // namespace kestrune::macho
