#include "tests/macho/Limits.h"

#include "tests/macho/Exports.h"
#include "tests/macho/Fixups.h"

#include <algorithm>
#include <optional>

namespace kestrune::macho {

namespace {

constexpr std::string_view InstallName = "install-name: ";

std::optional<Processor> processorNamed(std::string_view name) {
    for (const Processor processor : {Processor::arm64, Processor::x86_64}) {
        if (name == nameOf(processor)) {
            return processor;
        }
    }
    return std::nullopt;
}

std::string_view takeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return line;
}

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

class Judge {
public:
    Judge(const MachSlice& slice, const Limits& limits, const ExportLists& exports)
        : slice_(slice), limits_(limits), exports_(exports) {}

    Measures judge() {
        const Fixups fixups = readFixups(slice_);
        const auto version = slice_.buildVersion();
        measures_ = {slice_.content().size(),
                     initializersOf(slice_),
                     fixups.imports.size(),
                     version ? version->minimumSystem : Version(),
                     {}};
        compare(measures_.bytes, limits_.bytes, "bytes");
        compare(measures_.initializers, limits_.initializers, "initializers before main");
        compare(measures_.imports, limits_.imports, "imports");
        if (!version || version->platform != BuildVersion::MacOS ||
            version->minimumSystem != limits_.minimumSystem) {
            complain("is for macOS " + measures_.minimumSystem.text() + ", not " +
                     limits_.minimumSystem.text());
        }
        const auto own = readExports(slice_);
        for (const Import& import : fixups.imports) {
            lookUp(import, own.contains(std::string(import.name)));
        }
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

    void lookUp(const Import& import, bool isOwn) {
        if (import.ordinal > 0) {
            const std::string_view library =
                slice_.libraries()[static_cast<std::size_t>(import.ordinal) - 1].installName;
            if (!exports_.knows(library)) {
                complain("imports from " + printable(library) + ", which no export list is about");
            } else if (!exports_.has(library, import.name, slice_.processor())) {
                complain("imports " + printable(import.name) + ", which is not in the export list of " +
                         printable(library));
            }
        } else if (!isOwn && !exports_.hasInAny(import.name, slice_.processor())) {
            complain("imports " + printable(import.name) +
                     ", which it does not define and is in no export list");
        }
    }

    const MachSlice& slice_;
    const Limits& limits_;
    const ExportLists& exports_;
    Measures measures_;
};

} // namespace

void ExportLists::add(std::string_view text, const std::string& name) {
    const auto refuse = [&](std::string_view line, const std::string& what) {
        throw MachError(name + ": " + printable(line) + ": " + what);
    };
    std::map<std::string, std::set<Processor>, std::less<>>* symbols = nullptr;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        if (!symbols) {
            if (!line.starts_with(InstallName)) {
                refuse(line, "is not \"install-name: \" and the library's");
            }
            symbols = &libraries_[std::string(line.substr(InstallName.size()))];
            continue;
        }
        const std::size_t space = line.find(' ');
        auto& processors = (*symbols)[std::string(line.substr(0, space))];
        if (space == std::string_view::npos) {
            processors.insert({Processor::arm64, Processor::x86_64});
        } else if (const auto processor = processorNamed(line.substr(space + 1))) {
            processors.insert(*processor);
        } else {
            refuse(line, "ends in the name of no processor");
        }
    }
    if (!symbols) {
        throw MachError(name + ": has no install name");
    }
}

bool ExportLists::has(std::string_view library, std::string_view symbol, Processor processor) const {
    const auto found = libraries_.find(std::string(library));
    if (found == libraries_.end()) {
        return false;
    }
    const auto processors = found->second.find(symbol);
    return processors != found->second.end() && processors->second.contains(processor);
}

bool ExportLists::hasInAny(std::string_view symbol, Processor processor) const {
    return std::any_of(libraries_.begin(), libraries_.end(),
                       [&](const auto& library) { return has(library.first, symbol, processor); });
}

Measures measure(const MachSlice& slice, const Limits& limits, const ExportLists& exports) {
    return Judge(slice, limits, exports).judge();
}

} // namespace kestrune::macho
