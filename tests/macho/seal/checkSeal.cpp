// kestrune-check-seal APP [SDK]: prints a line for each half of the bundle's program when its seal holds and,
// where there is a folder with stubs of the system's libraries, each import is in one. Exit status 1 for a
// seal that does not hold; 2 for a program that cannot be read, as one for another processor, and for an
// import that is not there. Either is one line that says what is wrong and where.
#include "tests/macho/seal/Digest.h"
#include "tests/macho/seal/SealCheck.h"
#include "tests/macho/seal/SealError.h"

#include <filesystem>
#include <iostream>
#include <optional>

namespace {

using namespace kestrune::macho;

int fail(int status, const std::string& message) {
    std::cerr << "kestrune-check-seal: " << message << '\n';
    return status;
}

void print(const SealedHalf& half) {
    std::cout << nameOf(half.processor) << ": " << half.size << " bytes, for macOS "
              << half.minimumSystem.text() << ", " << half.identifier << ", cdhash " << digits(half.cdhash)
              << ", " << half.pages << " pages\n";
}

int check(const std::filesystem::path& path, const std::optional<std::string>& sdk) {
    const auto name = path.filename().empty() ? path.parent_path().filename() : path.filename();
    const FileTree bundle = readFileTree(path.string(), name.string());
    const auto stubs = sdk ? std::optional(TextStubs::in(readFileTree(*sdk, *sdk))) : std::nullopt;
    for (const SealedHalf& half : checkSeal(bundle, stubs ? &*stubs : nullptr)) {
        print(half);
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2 && count != 3) {
        return fail(2, "usage: kestrune-check-seal APP [SDK]");
    }
    try {
        return check(arguments[1], count == 3 ? std::optional<std::string>(arguments[2]) : std::nullopt);
    } catch (const SealError& error) {
        return fail(1, error.what());
    } catch (const MachError& error) {
        return fail(2, error.what());
    }
}
