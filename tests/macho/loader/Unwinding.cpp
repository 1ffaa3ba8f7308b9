#include "tests/macho/loader/Unwinding.h"

#include "tests/macho/loader/CallFrames.h"

#include <vector>

// libgcc's: takes a whole section .eh_frame, which has to stay.
// NOLINTNEXTLINE(readability-identifier-naming, bugprone-reserved-identifier): the name is the compiler's.
extern "C" void __register_frame(void* section);

namespace kestrune::macho {

std::vector<std::uint8_t> callFramesOf(const LoadedImage& image) {
    const Bytes memory(image.memory(), image.slice().name());
    CallFrames frames(memory, image.slice().processor());
    if (const auto section = image.section("__unwind_info"); !section.empty()) {
        const Bytes content(section, image.slice().name() + ": the section __unwind_info");
        for (const UnwoundFunction& function : readCompactUnwind(content)) {
            frames.add(function);
        }
    }
    return frames.finish();
}

std::span<std::uint8_t> dwarfFramesOf(const LoadedImage& image) {
    const auto section = image.section("__eh_frame");
    if (section.empty()) {
        return {};
    }
    // Entries of a length each, and four zero bytes behind the last: the linker leaves them when the section
    // is the last one in its segment.
    const auto start = static_cast<std::uint64_t>(section.data() - image.memory().data());
    const Bytes memory(image.memory(), image.slice().name() + ": the section __eh_frame");
    std::uint64_t place = start;
    while (place < start + section.size()) {
        const auto length = memory.little<std::uint32_t>(place, "an entry");
        memory.span(place, sizeof(length) + std::uint64_t{length}, "an entry");
        if (length == 0) {
            break;
        }
        place += sizeof(length) + length;
    }
    if (memory.little<std::uint32_t>(place, "the end") != 0) {
        memory.refuse("has no end");
    }
    return section;
}

void registerUnwinding(const LoadedImage& image) {
    if (const auto section = dwarfFramesOf(image); !section.empty()) {
        __register_frame(section.data());
    }
    // Kept for ever, as the unwinder looks at it whenever something is thrown.
    static std::vector<std::vector<std::uint8_t>> kept;
    __register_frame(kept.emplace_back(callFramesOf(image)).data());
}

} // namespace kestrune::macho
