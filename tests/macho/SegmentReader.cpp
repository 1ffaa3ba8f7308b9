#include "tests/macho/SegmentReader.h"

#include <limits>

namespace kestrune::macho {

namespace {

constexpr std::uint64_t SegmentSize = 72;
constexpr std::uint64_t SectionSize = 80;
constexpr std::uint64_t LargestAddress = std::numeric_limits<std::uint64_t>::max();

void requireInFile(const Segment& segment, const Bytes& slice) {
    const std::string what = "the segment " + printable(segment.name);
    if (segment.offset > slice.size() || segment.fileSize > slice.size() - segment.offset) {
        const bool overflows = segment.fileSize > LargestAddress - segment.offset;
        slice.refuse(what + " ends at " +
                     (overflows ? "no number" : hexadecimal(segment.offset + segment.fileSize)) +
                     ", the file at " + hexadecimal(slice.size()));
    }
    if (segment.fileSize > segment.size) {
        slice.refuse(what + " has " + hexadecimal(segment.fileSize) + " bytes in the file and " +
                     hexadecimal(segment.size) + " in memory");
    }
    if (segment.size > LargestAddress - segment.address) {
        slice.refuse(what + " ends behind the last address");
    }
}

void requireInSegment(const Section& section, const Segment& segment, const Bytes& slice) {
    const std::string what = "the section " + printable(segment.name) + "," + printable(section.name);
    const std::uint64_t start = section.address - segment.address;
    if (section.address < segment.address || start > segment.size || section.size > segment.size - start) {
        slice.refuse(what + " at " + hexadecimal(section.address) + " is not within its segment");
    }
    if (section.isFilledWithZeros() || section.size == 0) {
        return;
    }
    if (section.offset != segment.offset + start) {
        slice.refuse(what + " is at " + hexadecimal(section.offset) + " of the file, not at " +
                     hexadecimal(segment.offset + start) + " as its address has it");
    }
    if (start + section.size > segment.fileSize) {
        slice.refuse(what + " ends behind what the file has of its segment");
    }
}

} // namespace

bool Section::isFilledWithZeros() const {
    constexpr std::uint32_t LargeZeroFill = 0xC;
    constexpr std::uint32_t ThreadLocalZeroFill = 0x12;
    return type() == ZeroFill || type() == LargeZeroFill || type() == ThreadLocalZeroFill;
}

Segment readSegment(const Bytes& command, const Bytes& slice) {
    const auto word = [&](std::uint64_t offset) { return command.little<std::uint32_t>(offset, "a field"); };
    const auto number = [&](std::uint64_t offset) {
        return command.little<std::uint64_t>(offset, "a field");
    };
    Segment segment;
    segment.name = command.paddedText(8, 16, "the name");
    segment.address = number(24);
    segment.size = number(32);
    segment.offset = number(40);
    segment.fileSize = number(48);
    segment.maximumProtection = word(56);
    segment.protection = word(60);
    segment.flags = word(68);
    requireInFile(segment, slice);
    const std::uint64_t count = word(64);
    if (command.size() != SegmentSize + count * SectionSize) {
        command.refuse("has " + std::to_string(command.size()) + " bytes for " + std::to_string(count) +
                       " sections");
    }
    for (std::uint64_t place = SegmentSize; place < command.size(); place += SectionSize) {
        const Section section{command.paddedText(place, 16, "a section"),
                              command.paddedText(place + 16, 16, "a section"),
                              number(place + 32),
                              number(place + 40),
                              word(place + 48),
                              word(place + 64)};
        requireInSegment(section, segment, slice);
        segment.sections.push_back(section);
    }
    return segment;
}

} // namespace kestrune::macho
