// Programs that are loaded but not run, and unwind information by itself: whatever is in them, memory outside
// of the image stays alone, and what is refused is refused in one line that names the file.
#include "tests/fuzz/MachRefusal.h"
#include "tests/macho/MachFile.h"
#include "tests/macho/loader/CallFrames.h"
#include "tests/macho/loader/Unwinding.h"

namespace kestrune {
namespace {

using namespace macho;

// Nobody runs it.
void* anything(std::string_view /*library*/, std::string_view /*name*/) {
    static int place = 0;
    return &place;
}

void load(std::span<const std::uint8_t> bytes) {
    const MachFile file(bytes, MachInput);
    for (const MachSlice& slice : file.slices()) {
        attempt([&] {
            const LoadedImage image(slice, anything);
            callFramesOf(image);
            dwarfFramesOf(image);
        });
    }
}

// As if the bytes were the section of an image that consists of them.
void unwind(std::span<const std::uint8_t> bytes, Processor processor) {
    const Bytes content(bytes, MachInput);
    CallFrames frames(content, processor);
    for (const UnwoundFunction& function : readCompactUnwind(content)) {
        frames.add(function);
    }
    frames.finish();
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    kestrune::attempt([&] { kestrune::load(bytes); });
    for (const auto processor : {kestrune::macho::Processor::arm64, kestrune::macho::Processor::x86_64}) {
        kestrune::attempt([&] { kestrune::unwind(bytes, processor); });
    }
    return 0;
}
