#include "tests/macho/Limits.h"

#include "tests/macho/Fixups.h"
#include "tests/macho/MissingImports.h"

#include <string>
#include <string_view>
#include <utility>

namespace kestrune::macho {

namespace {

std::size_t initializersOf(const MachSlice& slice) {
    constexpr std::size_t SizeOfPointer = 8;
    constexpr std::size_t SizeOfOffset = 4;
    std::size_t count = 0;
    for (const Segment& segment : slice.segments()) {
        for (const Section& section : segment.sections) {
            if (section.type() == Section::InitializerPointers) {
                count += section.size / SizeOfPointer;
            } else if (section.type() == Section::InitializerOffsets) {
                count += section.size / SizeOfOffset;
            }
        }
    }
    return count;
}

class Measuring {
public:
    Measuring(const MachSlice& slice, const Limits& limits, const TextStubs& stubs)
        : slice_(slice), limits_(limits), stubs_(stubs) {}

    Measures measures() {
        const Fixups fixups = readFixups(slice_);
        const BuildVersion version = slice_.buildVersion().value_or(BuildVersion());
        measures_ = {slice_.content().size(),
                     initializersOf(slice_),
                     fixups.imports.size(),
                     version.minimumSystem,
                     version.sdk,
                     {},
                     missingImports(slice_, fixups.imports, stubs_)};
        compare(measures_.bytes, limits_.bytes, "bytes");
        compare(measures_.initializers, limits_.initializers, "initializers before main");
        compare(measures_.imports, limits_.imports, "imports");
        if (version.platform != BuildVersion::MacOS) {
            complain("is for the platform " + std::to_string(version.platform) + ", which is not macOS");
        }
        compare(version.minimumSystem, limits_.minimumSystem, "is for macOS ");
        compare(version.sdk, limits_.sdk, "names the SDK ");
        return std::move(measures_);
    }

private:
    void complain(const std::string& what) { measures_.violations.push_back(slice_.name() + ": " + what); }

    void compare(std::uint64_t number, std::uint64_t limit, std::string_view what) {
        if (number > limit) {
            complain("has " + std::to_string(number) + " " + std::string(what) + ", and " +
                     std::to_string(limit) + " are allowed");
        }
    }

    void compare(const Version& version, const Version& wanted, const std::string& what) {
        if (version != wanted) {
            complain(what + version.text() + ", not " + wanted.text());
        }
    }

    const MachSlice& slice_;
    const Limits& limits_;
    const TextStubs& stubs_;
    Measures measures_;
};

} // namespace

Measures measure(const MachSlice& slice, const Limits& limits, const TextStubs& stubs) {
    return Measuring(slice, limits, stubs).measures();
}

} // namespace kestrune::macho
