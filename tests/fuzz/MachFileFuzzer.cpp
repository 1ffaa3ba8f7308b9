// Mach-O files: of what is accepted, everything that a loader would follow leads into the file and into the
// image; what is refused is refused in one line that names the file.
#include "tests/fuzz/MachRefusal.h"
#include "tests/macho/Fixups.h"
#include "tests/macho/MachFile.h"

#include <set>

namespace kestrune {
namespace {

using namespace macho;

constexpr std::size_t SizeOfPointer = 8;

void checkSegments(const MachSlice& slice) {
    const std::size_t size = slice.content().size();
    for (const Segment& segment : slice.segments()) {
        require(segment.offset <= size && segment.fileSize <= size - segment.offset,
                "segments are in the file");
        require(segment.fileSize <= segment.size, "segments have room for their bytes");
        require(segment.address + segment.size >= segment.address, "segments end at an address");
        for (const Section& section : segment.sections) {
            const auto contents = slice.contents(section);
            require(section.isFilledWithZeros() || contents.size() == section.size,
                    "sections have their bytes");
            require(section.size == 0 || segment.holds(section.address + section.size - 1),
                    "sections are in their segments");
        }
    }
    require(slice.segmentHolding(slice.loadAddress()) != nullptr, "the header is in a segment");
}

// Whether a pointer there can be written before the program runs.
bool isInFile(const MachSlice& slice, std::uint64_t address) {
    const Segment* const segment = slice.segmentHolding(address);
    return segment && segment->fileSize >= SizeOfPointer &&
           address - segment->address <= segment->fileSize - SizeOfPointer;
}

void checkFixups(const MachSlice& slice) {
    const Fixups fixups = readFixups(slice);
    for (const Import& import : fixups.imports) {
        require(import.ordinal >= Import::WeakDefinition, "ordinals have a meaning");
        require(import.ordinal <= static_cast<int>(slice.libraries().size()), "imports have a library");
    }
    std::set<std::uint64_t> places;
    for (const Fixup& fixup : fixups.fixups) {
        require(isInFile(slice, fixup.address), "fixups are in the file");
        require(places.insert(fixup.address).second, "no fixup is met twice");
        if (const auto* bind = std::get_if<Bind>(&fixup.value)) {
            require(bind->import < fixups.imports.size(), "fixups have an import");
        } else {
            const std::uint64_t target = std::get<Rebase>(fixup.value).target;
            require(slice.segmentHolding(target) || (target > 0 && slice.segmentHolding(target - 1)),
                    "fixups point into the image");
        }
    }
}

// Each of these may refuse what the others accept.
void checkSlice(const MachSlice& slice) {
    checkSegments(slice);
    attempt([&] { checkFixups(slice); });
    attempt([&] { slice.buildVersion(); });
    attempt([&] { slice.codeSignature(); });
    attempt([&] {
        const auto entry = slice.entryPoint();
        require(!entry || slice.segmentHolding(*entry), "the entry point is in the image");
    });
}

void check(std::span<const std::uint8_t> bytes) {
    attempt([&] {
        const MachFile file(bytes, MachInput);
        require(!file.slices().empty(), "a file has a program");
        for (const MachSlice& slice : file.slices()) {
            require(&file.slice(slice.processor()) == &slice, "each program is for a processor of its own");
            checkSlice(slice);
        }
    });
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check({data, size});
    return 0;
}
