// kestrune-check-seal APP: prints a line for each half of the bundle's program when its seal holds. Exit
// status 1 for a seal that does not hold; 2 for a program that cannot be read, as one for another processor.
// Either is one line that says what is wrong and where.
#include "tests/macho/Digest.h"
#include "tests/macho/SealCheck.h"
#include "tests/macho/SealError.h"

#include <filesystem>
#include <iostream>

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

int check(const std::filesystem::path& path) {
    const auto name = path.filename().empty() ? path.parent_path().filename() : path.filename();
    for (const SealedHalf& half : checkSeal(readFileTree(path.string(), name.string()))) {
        print(half);
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        return fail(2, "usage: kestrune-check-seal APP");
    }
    try {
        return check(arguments[1]);
    } catch (const SealError& error) {
        return fail(1, error.what());
    } catch (const MachError& error) {
        return fail(2, error.what());
    }
}
