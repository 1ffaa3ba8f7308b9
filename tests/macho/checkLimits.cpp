// kestrune-check-limits [--bytes N] [--initializers N] [--imports N] [--system V] PROGRAM SDK: prints what
// each half of a program costs and holds it against limits: so many bytes, functions that run before main and
// imports at most, just that macOS as the first that runs it, and as its SDK just the one that SDK is of, a
// folder with SDKSettings.json and stubs of the system's libraries, *.tbd.
//
// Exit status 1 for a program that is over a limit or for other systems. 2 for what no system would run or
// nobody can read, whatever it costs: no Mach-O file, one for another processor, one that ends early or has
// fixups outside of its segments, imports that are in no stub, a folder that is no SDK. Each finding, so each
// of the imports, is a line that says what is wrong and where.
#include "tests/macho/FileTree.h"
#include "tests/macho/Limits.h"
#include "tests/macho/MachFile.h"
#include "tests/macho/SystemVersion.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <span>

namespace {

using namespace kestrune::macho;

constexpr std::string_view Usage =
    "usage: kestrune-check-limits [--bytes N] [--initializers N] [--imports N] [--system V] "
    "PROGRAM SDK";

std::uint64_t numberIn(std::string_view text) {
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    if (std::from_chars(text.data(), end, number).ptr != end || text.empty()) {
        throw MachError(std::string(Usage));
    }
    return number;
}

// Takes the options from the arguments and leaves the rest.
Limits limitsIn(std::span<char*>& arguments) {
    Limits limits;
    while (arguments.size() > 2) {
        const std::string_view option = arguments[0];
        if (option == "--bytes") {
            limits.bytes = numberIn(arguments[1]);
        } else if (option == "--initializers") {
            limits.initializers = numberIn(arguments[1]);
        } else if (option == "--imports") {
            limits.imports = numberIn(arguments[1]);
        } else if (option == "--system") {
            const auto version = versionIn(arguments[1]);
            if (!version) {
                throw MachError(std::string(Usage));
            }
            limits.minimumSystem = *version;
        } else {
            throw MachError(std::string(Usage));
        }
        arguments = arguments.subspan(2);
    }
    if (arguments.size() != 2) {
        throw MachError(std::string(Usage));
    }
    return limits;
}

Version versionOf(const FileTree& sdk) {
    const std::string name = sdk.name + "/SDKSettings.json";
    const FileContent* const settings = sdk.file("SDKSettings.json");
    if (!settings) {
        throw MachError(name + ": is missing");
    }
    return versionOfSettings(std::string(settings->begin(), settings->end()), name);
}

void print(const MachSlice& slice, const Measures& measures, const Limits& limits) {
    std::cout << nameOf(slice.processor()) << ": " << measures.bytes << " of " << limits.bytes << " bytes, "
              << measures.initializers << " of " << limits.initializers << " initializers, "
              << measures.imports << " of " << limits.imports << " imports, for macOS "
              << measures.minimumSystem.text() << ", SDK " << measures.sdk.text() << '\n';
}

// Whether there was nothing to complain about.
bool complain(const std::vector<std::string>& findings) {
    for (const std::string& finding : findings) {
        std::cerr << "kestrune-check-limits: " << finding << '\n';
    }
    return findings.empty();
}

int check(std::span<char*> arguments) {
    Limits limits = limitsIn(arguments);
    const FileTree sdk = readFileTree(arguments[1], arguments[1]);
    limits.sdk = versionOf(sdk);
    const TextStubs stubs = TextStubs::in(sdk);
    const std::string path = arguments[0];
    const FileContent program = readFile(path);
    const MachFile file(program, path);
    // All before the first line, as of a program that cannot be read nothing is said.
    std::vector<Measures> halves;
    for (const MachSlice& slice : file.slices()) {
        halves.push_back(measure(slice, limits, stubs));
    }
    int status = 0;
    for (std::size_t index = 0; index < halves.size(); ++index) {
        print(file.slices()[index], halves[index], limits);
        status = std::max(status, complain(halves[index].violations) ? 0 : 1);
        status = std::max(status, complain(halves[index].missing) ? 0 : 2);
    }
    return status;
}

} // namespace

int main(int count, char** arguments) {
    try {
        return check(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
    } catch (const MachError& error) {
        std::cerr << "kestrune-check-limits: " << error.what() << '\n';
    }
    return 2;
}
