#include "tests/macho/seal/SealCheck.h"

#include "tests/macho/Fixups.h"
#include "tests/macho/MachFile.h"
#include "tests/macho/MissingImports.h"
#include "tests/macho/seal/CodeSignature.h"
#include "tests/macho/seal/PropertyListFile.h"
#include "tests/macho/seal/ResourceSeal.h"
#include "tests/macho/seal/SealError.h"

#include <optional>
#include <utility>

namespace kestrune::macho {

namespace {

constexpr std::string_view CodeResources = "_CodeSignature/CodeResources";

[[noreturn]] void refuse(const std::string& place, const std::string& what) {
    throw SealError(printable(place) + ": " + what);
}

// What the bundle has to say about its program.
struct Identity {
    std::string identifier;
    std::string program;
};

Identity identityIn(const FileContent& information, const std::string& name) {
    const auto properties = readPropertyListFile(information, name);
    const auto identifier = properties ? properties->text("CFBundleIdentifier") : std::nullopt;
    const auto program = properties ? properties->text("CFBundleExecutable") : std::nullopt;
    if (!identifier || !program) {
        refuse(name, "is no property list with CFBundleIdentifier and CFBundleExecutable");
    }
    return {*identifier, *program};
}

// The files that the seal of one program is about; null for those that there are none of.
struct Sealed {
    const FileContent* information = nullptr;
    std::string informationName;
    const FileContent* resources = nullptr;
    std::string resourcesName;
    std::optional<std::string> identifier;
    const TextStubs* stubs = nullptr; // what its imports have to be in
};

std::optional<std::span<const std::uint8_t>> contentOf(const FileContent* file) {
    return file ? std::optional<std::span<const std::uint8_t>>(*file) : std::nullopt;
}

void checkImports(const MachSlice& slice, const TextStubs* stubs) {
    // Older ways to say what has to be fixed up are not read; frameworks for older systems have them.
    if (!stubs && !slice.command(Command::chainedFixups)) {
        return;
    }
    const Fixups fixups = readFixups(slice);
    const auto missing = stubs ? missingImports(slice, fixups.imports, *stubs) : std::vector<std::string>();
    if (!missing.empty()) {
        throw MachError(missing.front());
    }
}

SealedHalf checkHalf(const MachSlice& slice, const Sealed& sealed) {
    const CodeSignature signature = readCodeSignature(slice);
    verifyCode(signature, slice);
    if (sealed.identifier && signature.identifier != *sealed.identifier) {
        refuse(slice.name(), "is signed as " + printable(signature.identifier) + ", and the bundle is " +
                                 printable(*sealed.identifier));
    }
    if (!signature.covers(Slot::information, contentOf(sealed.information))) {
        refuse(sealed.informationName, "is not the one that was sealed with " + slice.name());
    }
    if (!signature.covers(Slot::resources, contentOf(sealed.resources))) {
        refuse(sealed.resourcesName, "is not the one that was sealed with " + slice.name());
    }
    checkImports(slice, sealed.stubs);
    const auto version = slice.buildVersion();
    return {slice.processor(),    slice.content().size(), version ? version->minimumSystem : Version(),
            signature.identifier, signature.cdhash,       signature.pages.size()};
}

std::vector<SealedHalf> checkHalves(const MachFile& file, const Sealed& sealed) {
    std::vector<SealedHalf> halves;
    for (const MachSlice& slice : file.slices()) {
        halves.push_back(checkHalf(slice, sealed));
    }
    return halves;
}

// A folder with everything that one seal covers.
std::vector<SealedHalf> checkContents(const FileTree& contents, const std::string& informationPath,
                                      const std::string& programs, const TextStubs* stubs) {
    const FileContent* const information = contents.file(informationPath);
    const std::string informationName = contents.name + "/" + informationPath;
    if (!information) {
        refuse(informationName, "is missing");
    }
    const Identity identity = identityIn(*information, informationName);
    const std::string programPath = programs + identity.program;
    const FileContent* const program = contents.file(programPath);
    if (!program) {
        refuse(contents.name + "/" + programPath, "is missing");
    }
    const FileContent* const resources = contents.file(std::string(CodeResources));
    const std::string resourcesName = contents.name + "/" + std::string(CodeResources);
    if (!resources) {
        refuse(resourcesName, "is missing");
    }
    const MachFile file(*program, printable(contents.name + "/" + programPath));
    auto halves = checkHalves(
        file, {information, informationName, resources, resourcesName, identity.identifier, stubs});
    checkResources(contents, programPath, *resources);
    return halves;
}

bool isFramework(const FileTree& bundle) { return bundle.name.ends_with(".framework"); }

// Beside what is sealed there may be nothing; a framework has links to the version that counts.
void requireNothingBeside(const FileTree& bundle, const std::string& folder) {
    for (const auto& [path, entry] : bundle.entries) {
        const bool isInside =
            path == folder || path.starts_with(folder + "/") || folder.starts_with(path + "/");
        const bool isLink = isFramework(bundle) && std::holds_alternative<LinkTarget>(entry);
        if (!isInside && !isLink) {
            refuse(bundle.name + "/" + path, "lies outside what is sealed");
        }
    }
}

} // namespace

std::vector<SealedHalf> checkSeal(const FileTree& bundle, const TextStubs* stubs) {
    std::string folder = "Contents";
    if (isFramework(bundle)) {
        const auto current = bundle.entries.find("Versions/Current");
        const auto* const target =
            current == bundle.entries.end() ? nullptr : std::get_if<LinkTarget>(&current->second);
        if (!target) {
            refuse(bundle.name + "/Versions/Current", "is no link to the version that counts");
        }
        folder = "Versions/" + target->path;
    }
    requireNothingBeside(bundle, folder);
    requireLinksWithin(bundle);
    const FileTree contents = bundle.below(folder);
    return isFramework(bundle) ? checkContents(contents, "Resources/Info.plist", "", stubs)
                               : checkContents(contents, "Info.plist", "MacOS/", stubs);
}

std::vector<SealedHalf> checkProgramSeal(const FileContent& program, const std::string& name) {
    const MachFile file(program, name);
    std::vector<SealedHalf> halves;
    for (const MachSlice& slice : file.slices()) {
        // The Info.plist of such a program is one of its sections, if it has any.
        FileContent information;
        if (const Segment* const text = slice.segment("__TEXT")) {
            for (const Section& section : text->sections) {
                if (section.name == "__info_plist") {
                    const auto content = slice.contents(section);
                    information.assign(content.begin(), content.end());
                }
            }
        }
        const Sealed sealed{information.empty() ? nullptr : &information, name, nullptr, name, std::nullopt};
        halves.push_back(checkHalf(slice, sealed));
    }
    return halves;
}

} // namespace kestrune::macho
