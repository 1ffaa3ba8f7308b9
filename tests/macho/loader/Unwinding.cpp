#include "tests/macho/loader/Unwinding.h"

#include "tests/macho/loader/CallFrames.h"

#include <vector>

// libgcc's: takes a whole section .eh_frame, which has to stay.
extern "C" void
__register_frame(void* section); // NOLINT(bugprone-reserved-identifier): the name is the compiler's

namespace kestrune::macho {

namespace {

// What the compact form cannot say is in DWARF as it is. The unwinder reads on to four zero bytes, which the
// linker leaves behind the section when it is the last one in its segment.
void registerDwarf(const LoadedImage& image) {
    const auto section = image.section("__eh_frame");
    if (section.empty()) {
        return;
    }
    const Segment* const segment = image.slice().segment("__TEXT");
    const std::uint8_t* const end = image.at(segment->address + segment->size);
    const std::span<const std::uint8_t> rest(section.data() + section.size(), end);
    const Bytes behind(rest, image.slice().name() + ": the section __eh_frame");
    if (behind.little<std::uint32_t>(0, "an end") != 0) {
        behind.refuse("has no end");
    }
    __register_frame(section.data());
}

} // namespace

std::vector<std::uint8_t> callFramesOf(const LoadedImage& image) {
    const Bytes memory(image.memory(), image.slice().name());
    CallFrames frames(memory);
    if (const auto section = image.section("__unwind_info"); !section.empty()) {
        const Bytes content(section, image.slice().name() + ": the section __unwind_info");
        for (const UnwoundFunction& function : readCompactUnwind(content)) {
            frames.add(function);
        }
    }
    return frames.finish();
}

void registerUnwinding(const LoadedImage& image) {
    registerDwarf(image);
    // Kept for ever, as the unwinder looks at it whenever something is thrown.
    static std::vector<std::vector<std::uint8_t>> kept;
    __register_frame(kept.emplace_back(callFramesOf(image)).data());
}

} // namespace kestrune::macho
