// One program in a Mach-O file: its load commands, and what they say, held against its bytes.
#pragma once

#include "tests/macho/Bytes.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::macho {

// The platform's own names.
enum class Processor { arm64, x86_64 }; // NOLINT(readability-identifier-naming)

std::string_view nameOf(Processor processor);

// Of the number that stands for it in a file. Throws MachError, in the name of `place`, for another one.
Processor processorOfKind(std::uint32_t kind, const Bytes& place);

// Only what a reader has to tell apart.
enum class FileType : std::uint32_t { executable = 2, library = 6, bundle = 8 };

enum class Command : std::uint32_t {
    library = 0xC,
    segment = 0x19,
    codeSignature = 0x1D,
    dyldInfo = 0x22,
    buildVersion = 0x32,
    weakLibrary = 0x80000018,
    reexportedLibrary = 0x8000001F,
    dyldInfoOnly = 0x80000022,
    upwardLibrary = 0x80000023,
    entryPoint = 0x80000028,
    exportsTrie = 0x80000033,
    chainedFixups = 0x80000034,
};

struct LoadCommand {
    Command kind{};
    std::uint64_t offset = 0; // in the slice
    Bytes content;            // its header included
};

struct Section {
    static constexpr std::uint32_t ZeroFill = 0x1;
    static constexpr std::uint32_t InitializerPointers = 0x9;
    static constexpr std::uint32_t InitializerOffsets = 0x16;

    std::string_view name;
    std::string_view segment;
    std::uint64_t address = 0;
    std::uint64_t size = 0;
    std::uint64_t offset = 0; // in the slice; of no meaning when it is filled with zeros
    std::uint32_t flags = 0;

    std::uint32_t type() const { return flags & 0xFF; }
    bool isFilledWithZeros() const;
};

struct Segment {
    static constexpr std::uint32_t Readable = 1;
    static constexpr std::uint32_t Writable = 2;
    static constexpr std::uint32_t Executable = 4;

    std::string_view name;
    std::uint64_t address = 0;
    std::uint64_t size = 0; // in memory, where zeros follow what the file has
    std::uint64_t offset = 0;
    std::uint64_t fileSize = 0;
    std::uint32_t maximumProtection = 0;
    std::uint32_t protection = 0; // of Readable, Writable and Executable
    std::uint32_t flags = 0;
    std::vector<Section> sections;

    bool holds(std::uint64_t place) const { return place >= address && place - address < size; }
    // Keeps null pointers from pointing at something, and has nothing in it.
    bool isGuard() const { return protection == 0 && fileSize == 0; }
};

struct Library {
    std::string_view installName;
    bool isWeak = false; // may be missing
};

struct Version {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t patch = 0;
    auto operator<=>(const Version&) const = default;
    std::string text() const; // without a patch of 0
};

struct BuildVersion {
    static constexpr std::uint32_t MacOS = 1;
    std::uint32_t platform = 0;
    Version minimumSystem;
    Version sdk;
};

// Everything that is borrowed is borrowed from the file's bytes.
class MachSlice {
public:
    explicit MachSlice(const Bytes& content);

    const Bytes& content() const { return content_; }
    // What messages start with.
    const std::string& name() const { return content_.name(); }
    Processor processor() const { return processor_; }
    FileType type() const { return type_; }

    const std::vector<LoadCommand>& commands() const { return commands_; }
    // Null when there is none.
    const LoadCommand* command(Command kind) const;

    // In the order of the file. Neither in the file nor in memory does one lie over another.
    const std::vector<Segment>& segments() const { return segments_; }
    const Segment* segment(std::string_view name) const;
    const Segment* segmentHolding(std::uint64_t address) const;
    std::span<const std::uint8_t> contents(const Section& section) const;

    // Where the linker put the header, and so the start of the image.
    std::uint64_t loadAddress() const { return loadAddress_; }

    // Ordinals count from 1: the library of ordinal n is libraries()[n - 1].
    const std::vector<Library>& libraries() const { return libraries_; }

    // These read their command when they are asked, and are absent when there is none.
    std::optional<BuildVersion> buildVersion() const;
    std::optional<std::uint64_t> entryPoint() const; // the address
    std::optional<Bytes> linkEditData(Command kind, std::string_view what) const;
    std::optional<Bytes> codeSignature() const;

private:
    void readHeader();
    void readCommands(std::uint32_t count, std::uint32_t size);
    void requireSeparateSegments() const;
    void findLoadAddress();

    Bytes content_;
    Processor processor_{};
    FileType type_{};
    std::vector<LoadCommand> commands_;
    std::vector<Segment> segments_;
    std::vector<Library> libraries_;
    std::uint64_t loadAddress_ = 0;
};

} // namespace kestrune::macho
