// kestrune-check-limits [--bytes N] [--initializers N] [--imports N] PROGRAM SDK: prints what each half
// of a program costs. SDK is a folder with stubs of the system's libraries, *.tbd. Exit status 1, and a line
// for each limit that does not hold and each import that is in no stub; 2 for what cannot be read.
#include "tests/macho/FileTree.h"
#include "tests/macho/Limits.h"
#include "tests/macho/MachFile.h"

#include <charconv>
#include <filesystem>
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

// As in 13.0.
Version versionIn(std::string_view text) {
    const std::size_t dot = text.find('.');
    const auto part = [](std::string_view digits) { return static_cast<std::uint32_t>(numberIn(digits)); };
    return dot == std::string_view::npos ? Version{part(text), 0, 0}
                                         : Version{part(text.substr(0, dot)), part(text.substr(dot + 1)), 0};
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
            limits.minimumSystem = versionIn(arguments[1]);
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

TextStubs stubsIn(const std::string& folder) {
    TextStubs stubs;
    for (const auto& [path, entry] : readFileTree(folder, folder).entries) {
        const auto* const content = std::get_if<FileContent>(&entry);
        if (content && path.ends_with(".tbd")) {
            stubs.add({reinterpret_cast<const char*>(content->data()), content->size()}, folder + "/" + path);
        }
    }
    return stubs;
}

void print(const MachSlice& slice, const Measures& measures, const Limits& limits) {
    std::cout << nameOf(slice.processor()) << ": " << measures.bytes << " of " << limits.bytes << " bytes, "
              << measures.initializers << " of " << limits.initializers << " initializers, "
              << measures.imports << " of " << limits.imports << " imports, for macOS "
              << measures.minimumSystem.text() << '\n';
}

int check(std::span<char*> arguments) {
    const Limits limits = limitsIn(arguments);
    const TextStubs stubs = stubsIn(arguments[1]);
    const std::string path = arguments[0];
    const FileContent program = readFile(path);
    const MachFile file(program, path);
    int status = 0;
    for (const MachSlice& slice : file.slices()) {
        const Measures measures = measure(slice, limits, stubs);
        print(slice, measures, limits);
        for (const std::string& violation : measures.violations) {
            std::cerr << "kestrune-check-limits: " << violation << '\n';
            status = 1;
        }
    }
    return status;
}

} // namespace

int main(int count, char** arguments) {
    try {
        return check(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
    } catch (const MachError& error) {
        std::cerr << "kestrune-check-limits: " << error.what() << '\n';
    } catch (const std::filesystem::filesystem_error& error) {
        std::cerr << "kestrune-check-limits: " << error.path1().string() << ": " << error.code().message()
                  << '\n';
    }
    return 2;
}
