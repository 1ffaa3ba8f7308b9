#include "tests/macho/MachSlice.h"

#include "tests/macho/SegmentReader.h"

#include <algorithm>
#include <iterator>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t Magic64 = 0xFEEDFACF;
constexpr std::uint32_t Magic32 = 0xFEEDFACE;
constexpr std::uint32_t KindOfArm64 = 0x0100000C;
constexpr std::uint32_t KindOfX86 = 0x01000007;
// Without these, of the kinds of each processor, come other rules: arm64e signs its pointers.
constexpr std::uint32_t SubtypeMask = 0x00FFFFFF;
constexpr std::uint32_t SubtypeOfArm64 = 0;
constexpr std::uint32_t SubtypeOfX86 = 3;

constexpr std::uint64_t HeaderSize = 32;
constexpr std::uint64_t SmallestCommand = 8;

Version versionOf(std::uint32_t packed) { return {packed >> 16, packed >> 8 & 0xFF, packed & 0xFF}; }

bool isLibrary(Command kind) {
    return kind == Command::library || kind == Command::weakLibrary || kind == Command::reexportedLibrary ||
           kind == Command::upwardLibrary;
}

} // namespace

std::string_view nameOf(Processor processor) { return processor == Processor::arm64 ? "arm64" : "x86_64"; }

Processor processorOfKind(std::uint32_t kind, const Bytes& place) {
    if (kind != KindOfArm64 && kind != KindOfX86) {
        place.refuse("is for the processor " + hexadecimal(kind) + ", which is neither arm64 nor x86_64");
    }
    return kind == KindOfArm64 ? Processor::arm64 : Processor::x86_64;
}

std::string Version::text() const {
    const std::string result = std::to_string(major) + "." + std::to_string(minor);
    return patch ? result + "." + std::to_string(patch) : result;
}

MachSlice::MachSlice(const Bytes& content) : content_(content) {
    readHeader();
    requireSeparateSegments();
    findLoadAddress();
}

void MachSlice::readHeader() {
    const auto magic = content_.little<std::uint32_t>(0, "the magic number");
    if (magic == Magic32) {
        content_.refuse("is a Mach-O file for 32 bits, which no macOS runs any more");
    }
    if (magic != Magic64) {
        content_.refuse("is no Mach-O file: it starts with " + hexadecimal(magic));
    }
    processor_ = processorOfKind(content_.little<std::uint32_t>(4, "the header"), content_);
    const auto subtype = content_.little<std::uint32_t>(8, "the header") & SubtypeMask;
    if (subtype != (processor_ == Processor::arm64 ? SubtypeOfArm64 : SubtypeOfX86)) {
        content_.refuse("is for a kind of " + std::string(nameOf(processor_)) + " that is not read, " +
                        std::to_string(subtype));
    }
    const auto type = content_.little<std::uint32_t>(12, "the header");
    type_ = static_cast<FileType>(type);
    if (type_ != FileType::executable && type_ != FileType::library && type_ != FileType::bundle) {
        content_.refuse("is a Mach-O file of the type " + std::to_string(type) +
                        ", neither a program nor a library");
    }
    const auto count = content_.little<std::uint32_t>(16, "the header");
    readCommands(count, content_.little<std::uint32_t>(20, "the header"));
}

void MachSlice::readCommands(std::uint32_t count, std::uint32_t size) {
    const Bytes all = content_.part(HeaderSize, size, "the load commands");
    std::uint64_t place = 0;
    for (std::uint32_t index = 0; index < count; ++index) {
        const std::string what = "load command " + std::to_string(index + 1);
        const auto kind = all.little<std::uint32_t>(place, what);
        const auto length = all.little<std::uint32_t>(place + 4, what);
        if (length < SmallestCommand || length % 8 != 0) {
            content_.refuse(what + " has " + std::to_string(length) + " bytes");
        }
        commands_.push_back({Command{kind}, HeaderSize + place, all.part(place, length, what).named(what)});
        place += length;
    }
    if (place != size) {
        content_.refuse("the load commands have " + std::to_string(place) + " bytes, not " +
                        std::to_string(size));
    }
    for (const LoadCommand& command : commands_) {
        if (command.kind == Command::segment) {
            segments_.push_back(readSegment(command.content, content_));
        } else if (isLibrary(command.kind)) {
            const auto name = command.content.little<std::uint32_t>(8, "a library's name");
            libraries_.push_back(
                {command.content.text(name, "a library's name"), command.kind == Command::weakLibrary});
        }
    }
}

void MachSlice::requireSeparateSegments() const {
    std::vector<const Segment*> sorted;
    std::transform(segments_.begin(), segments_.end(), std::back_inserter(sorted),
                   [](const Segment& segment) { return &segment; });
    const auto require = [&](auto start, auto size, const char* where) {
        std::sort(sorted.begin(), sorted.end(),
                  [&](const Segment* one, const Segment* two) { return one->*start < two->*start; });
        const Segment* before = nullptr;
        for (const Segment* segment : sorted) {
            if (before && segment->*size != 0 && segment->*start - before->*start < before->*size) {
                content_.refuse("the segments " + printable(before->name) + " and " +
                                printable(segment->name) + " share " + where + " from " +
                                hexadecimal(segment->*start) + " on");
            }
            before = segment->*size != 0 ? segment : before;
        }
    };
    require(&Segment::address, &Segment::size, "memory");
    require(&Segment::offset, &Segment::fileSize, "bytes of the file");
}

void MachSlice::findLoadAddress() {
    for (const Segment& segment : segments_) {
        if (segment.offset == 0 && segment.fileSize != 0) {
            const std::uint64_t end = HeaderSize + content_.little<std::uint32_t>(20, "the header");
            if (segment.fileSize < end) {
                content_.refuse("the segment " + printable(segment.name) +
                                " ends before the load commands do, at " + hexadecimal(segment.fileSize));
            }
            loadAddress_ = segment.address;
            return;
        }
    }
    content_.refuse("no segment holds the header");
}

const LoadCommand* MachSlice::command(Command kind) const {
    const auto found = std::find_if(commands_.begin(), commands_.end(),
                                    [&](const LoadCommand& command) { return command.kind == kind; });
    return found == commands_.end() ? nullptr : &*found;
}

const Segment* MachSlice::segment(std::string_view name) const {
    const auto found = std::find_if(segments_.begin(), segments_.end(),
                                    [&](const Segment& segment) { return segment.name == name; });
    return found == segments_.end() ? nullptr : &*found;
}

const Segment* MachSlice::segmentHolding(std::uint64_t address) const {
    const auto found = std::find_if(segments_.begin(), segments_.end(),
                                    [&](const Segment& segment) { return segment.holds(address); });
    return found == segments_.end() ? nullptr : &*found;
}

std::span<const std::uint8_t> MachSlice::contents(const Section& section) const {
    const std::uint64_t size = section.isFilledWithZeros() ? 0 : section.size;
    return content_.span(size ? section.offset : 0, size, "the section " + printable(section.name));
}

std::optional<BuildVersion> MachSlice::buildVersion() const {
    const LoadCommand* const found = command(Command::buildVersion);
    if (!found) {
        return std::nullopt;
    }
    const auto word = [&](std::uint64_t offset) {
        return found->content.little<std::uint32_t>(offset, "the build version");
    };
    return BuildVersion{word(8), versionOf(word(12)), versionOf(word(16))};
}

std::optional<std::uint64_t> MachSlice::entryPoint() const {
    const LoadCommand* const found = command(Command::entryPoint);
    if (!found) {
        return std::nullopt;
    }
    const auto offset = found->content.little<std::uint64_t>(8, "the entry point");
    for (const Segment& segment : segments_) {
        if ((segment.protection & Segment::Executable) && offset >= segment.offset &&
            offset - segment.offset < segment.fileSize) {
            return segment.address + (offset - segment.offset);
        }
    }
    content_.refuse("the entry point " + hexadecimal(offset) + " is in no executable segment");
}

std::optional<Bytes> MachSlice::linkEditData(Command kind, std::string_view what) const {
    const LoadCommand* const found = command(kind);
    if (!found) {
        return std::nullopt;
    }
    const auto offset = found->content.little<std::uint32_t>(8, what);
    const auto size = found->content.little<std::uint32_t>(12, what);
    return content_.part(offset, size, what).named(what);
}

std::optional<Bytes> MachSlice::codeSignature() const {
    return linkEditData(Command::codeSignature, "the code signature");
}

} // namespace kestrune::macho
