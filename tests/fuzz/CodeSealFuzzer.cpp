// Sealed programs, in a bundle that stays the same: no byte of an accepted one can be changed unnoticed; what
// is refused is refused in one line that names a file of the bundle.
#include "tests/fuzz/SealRefusal.h"
#include "tests/macho/MachFile.h"
#include "tests/macho/seal/CodeSignature.h"
#include "tests/macho/seal/SealCheck.h"

#include <numeric>

namespace kestrune {
namespace {

using namespace macho;

constexpr const char* Program = "Contents/MacOS/Tiny";

// The bundle without its program.
FileTree& bundle() {
    static FileTree tree = readFileTree(KESTRUNE_SEALED_BUNDLE, "Tiny.app");
    return tree;
}

bool isAccepted(const FileContent& program) {
    bundle().entries[Program] = program;
    std::vector<SealedHalf> halves;
    const bool isSealed = holds([&] { halves = checkSeal(bundle()); });
    for (const SealedHalf& half : halves) {
        require(half.identifier == "org.kestrune.Tiny", "a program bears the bundle's name");
    }
    return isSealed && !halves.empty();
}

// Where the code of each half is in the file, behind which its signature follows.
std::vector<std::pair<std::size_t, std::size_t>> codeOf(const FileContent& program) {
    std::vector<std::pair<std::size_t, std::size_t>> places;
    const MachFile file(program, "");
    for (const MachSlice& slice : file.slices()) {
        const auto start = static_cast<std::size_t>(slice.content().all().data() - program.data());
        places.emplace_back(start, start + readCodeSignature(slice).codeSize);
    }
    return places;
}

void check(FileContent program) {
    if (!isAccepted(program)) {
        return;
    }
    // Another place for each input.
    const auto seed = std::accumulate(program.begin(), program.end(), std::size_t{0});
    for (const auto& [start, end] : codeOf(program)) {
        const std::size_t place = start + seed % (end - start);
        program[place] ^= 1;
        require(!isAccepted(program), "a changed byte is noticed");
        program[place] ^= 1;
    }
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check({data, data + size});
    return 0;
}
