#include "tests/macho/loader/Program.h"

#include "tests/macho/FileTree.h"
#include "tests/macho/MachFile.h"
#include "tests/macho/loader/Unwinding.h"
#include "tests/macho/seal/CodeSignature.h"
#include "tests/macho/seal/SealError.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace kestrune::macho {

namespace {

const LoadedImage* theImage = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

// With everything that it borrows from the file.
struct Program {
    Program(const std::string& path, MessageChecks checks)
        : content(readFile(path)),
          file(content, path),
          image(sealed(file.slice(LoadedImage::Host)), importsOfThisProcess(checks)) {
        registerUnwinding(image);
    }

    // The system ends a program at the first page that is not what was signed.
    static const MachSlice& sealed(const MachSlice& slice) {
        verifyPages(readCodeSignature(slice), slice);
        return slice;
    }

    FileContent content;
    MachFile file;
    LoadedImage image;
};

[[noreturn]] void refuse(const std::runtime_error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    std::exit(2);
}

// Never destroyed: what the program gave to the platform may be called until the process has ended.
const LoadedImage& load(const std::string& path, MessageChecks checks) {
    try {
        return (new Program(path, checks))->image;
    } catch (const std::runtime_error& error) { // MachError or SealError
        refuse(error);
    }
}

} // namespace

// The unified log's stand-in asks whether a text lies in the program. The system knows of no such image, and
// this definition comes before its own.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's names are reserved.
extern "C" int dladdr(const void* address, Dl_info* information) noexcept {
    if (theImage != nullptr && theImage->contains(address)) {
        *information = {theImage->slice().name().c_str(), theImage->memory().data(), nullptr, nullptr};
        return 1;
    }
    static auto* const systems = reinterpret_cast<decltype(&dladdr)>(dlsym(RTLD_NEXT, "dladdr"));
    return systems(address, information);
}

std::span<const std::uint8_t> sectionOfProgram(std::string_view name) { return theImage->section(name); }

int runProgram(const std::string& path, MessageChecks checks, const std::vector<std::string>& arguments) {
    theImage = &load(path, checks);
    std::vector<std::string> texts = {path};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    try {
        return theImage->run(static_cast<int>(texts.size()), pointers.data(), environ);
    } catch (const MachError& error) {
        refuse(error);
    }
}

} // namespace kestrune::macho
