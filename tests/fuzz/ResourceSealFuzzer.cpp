// Lists of sealed resources, and the Info.plist, of a bundle that stays the same: under an accepted list
// nothing can be changed, added or taken away unnoticed, and no Info.plist is accepted but the one that was
// sealed; what is refused is refused in one line that names a file of the bundle.
#include "tests/fuzz/SealRefusal.h"
#include "tests/macho/seal/ResourceSeal.h"
#include "tests/macho/seal/SealCheck.h"

#include <utility>

namespace kestrune {
namespace {

using namespace macho;

constexpr const char* Information = "Contents/Info.plist";

FileTree bundleWithItsProgram() {
    FileTree tree = readFileTree(KESTRUNE_SEALED_BUNDLE, "Tiny.app");
    tree.entries["Contents/MacOS/Tiny"] = readFile(KESTRUNE_SEALED_PROGRAM);
    return tree;
}

bool covers(const FileContent& list, const FileTree& contents) {
    return holds([&] { checkResources(contents, "MacOS/Tiny", list); });
}

void checkList(const FileContent& list) {
    static FileTree contents = bundleWithItsProgram().below("Contents");
    if (!covers(list, contents)) {
        require(list != *contents.file("_CodeSignature/CodeResources"), "the bundle's own list is accepted");
        return;
    }
    // A resource, and a program with a seal of its own.
    for (const char* const path : {"Resources/Icon.icns", "MacOS/other"}) {
        auto& content = std::get<FileContent>(contents.entries.at(path));
        content[content.size() / 3] ^= 1;
        require(!covers(list, contents), "a changed file is noticed");
        content[content.size() / 3] ^= 1;
        auto taken = contents.entries.extract(path);
        require(!covers(list, contents), "a missing file is noticed");
        contents.entries.insert(std::move(taken));
    }
    const auto added = contents.entries.emplace("Resources/More.icns", FileContent()).first;
    require(!covers(list, contents), "an added file is noticed");
    contents.entries.erase(added);
}

void checkInformation(const FileContent& information) {
    static FileTree bundle = bundleWithItsProgram();
    static const FileContent sealed = *bundle.file(Information);
    bundle.entries[Information] = information;
    const bool isAccepted = holds([] { checkSeal(bundle); });
    require(isAccepted == (information == sealed),
            "the Info.plist that was sealed is accepted, and no other");
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const kestrune::macho::FileContent input(data, data + size);
    kestrune::checkList(input);
    kestrune::checkInformation(input);
    return 0;
}
