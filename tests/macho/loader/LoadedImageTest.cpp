#include "tests/macho/loader/LoadedImage.h"

#include "tests/macho/MachFile.h"
#include "tests/macho/Refusal.h"
#include "tests/macho/TinyProgram.h"
#include "tests/macho/loader/Unwinding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <string>

namespace kestrune::macho {
namespace {

using testing::SizeIs;

TinyProgram programForThisProcess() {
    TinyProgram program;
    program.processor = LoadedImage::Host;
    return program;
}

std::uint64_t pointerAt(const LoadedImage& image, std::uint64_t address) {
    std::uint64_t pointer = 0;
    std::memcpy(&pointer, image.at(address), sizeof(pointer));
    return pointer;
}

void* nothing(std::string_view /*library*/, std::string_view /*name*/) { return nullptr; }

// What the loader says to a program when nothing that it imports is there.
std::string refusalOfFile(const Content& bytes) {
    return macho::refusalOf([&] {
        const MachFile file(bytes, "Tiny");
        const LoadedImage image(file.slices().front(), nothing);
    });
}

std::string refusalOf(const TinyProgram& program) { return refusalOfFile(program.bytes()); }

TEST(LoadedImage, HasItsSegmentsAndItsPointers) {
    TinyProgram program = programForThisProcess();
    program.libraries = {"/usr/lib/libobjc.A.dylib", "/usr/lib/libSystem.B.dylib"};
    program.imports = {{2, false, "_exit", 0}, {1, false, "_objc_msgSend", 0}};
    const Content bytes = program.bytes();
    const MachFile file(bytes, "Tiny");
    std::vector<std::string> asked;
    static int somewhere = 0;
    const LoadedImage image(file.slices().front(), [&](std::string_view library, std::string_view name) {
        asked.push_back(std::string(library) + " " + std::string(name));
        return asked.size() == 1 ? static_cast<void*>(&somewhere) : static_cast<void*>(&asked);
    });
    EXPECT_THAT(asked, testing::ElementsAre("/usr/lib/libSystem.B.dylib _exit",
                                            "/usr/lib/libobjc.A.dylib _objc_msgSend"));
    EXPECT_TRUE(std::equal(image.memory().begin(), image.memory().begin() + 32, bytes.begin()));
    const Fixups fixups = readFixups(image.slice());
    ASSERT_THAT(fixups.fixups, SizeIs(3));
    const auto target = std::get<Rebase>(fixups.fixups[0].value).target;
    EXPECT_EQ(pointerAt(image, TinyProgram::DataAddress), std::bit_cast<std::uint64_t>(image.at(target)));
    EXPECT_EQ(pointerAt(image, TinyProgram::DataAddress + 8), std::bit_cast<std::uint64_t>(&somewhere));
    EXPECT_EQ(pointerAt(image, TinyProgram::DataAddress + 16), std::bit_cast<std::uint64_t>(&asked));
    EXPECT_TRUE(image.contains(image.at(TinyProgram::DataAddress)));
    EXPECT_FALSE(image.contains(&somewhere));
    EXPECT_THAT(callFramesOf(image), SizeIs(4)); // nothing but the end
}

TEST(LoadedImage, IsOfThisProcessor) {
    TinyProgram program = programForThisProcess();
    program.processor = LoadedImage::Host == Processor::arm64 ? Processor::x86_64 : Processor::arm64;
    const std::string own(nameOf(LoadedImage::Host));
    EXPECT_EQ(refusalOf(program),
              "Tiny: is for " + std::string(nameOf(program.processor)) + ", this process is for " + own);
}

TEST(LoadedImage, IsAProgram) {
    TinyProgram program = programForThisProcess();
    program.type = FileType::library;
    EXPECT_EQ(refusalOf(program), "Tiny: is no program");
}

TEST(LoadedImage, BeginsWithItsHeader) {
    // The places of the addresses of a segment and of its sections in their load command.
    constexpr std::uint64_t Segment = 24;
    constexpr std::uint64_t FirstSection = 72 + 32;
    constexpr std::uint64_t SecondSection = FirstSection + 80;
    constexpr std::uint64_t SizeOfSegment = 32;
    Content bytes = programForThisProcess().bytes();
    const std::uint64_t command = placeOfSegment(bytes, "__DATA");
    poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__PAGEZERO") + SizeOfSegment, 0x10000);
    poke<std::uint64_t>(bytes, command + Segment, 0x10000);
    poke<std::uint64_t>(bytes, command + FirstSection, 0x10000);
    poke<std::uint64_t>(bytes, command + SecondSection, 0x10010);
    EXPECT_EQ(refusalOfFile(bytes), "Tiny: has the segment __DATA before its header");
}

TEST(LoadedImage, NeedsItsImports) {
    TinyProgram program = programForThisProcess();
    program.imports = {{1, false, "_exit", 0}, {1, true, "_mayBeMissing", 0}, {1, false, "_fork", 0}};
    EXPECT_EQ(refusalOf(program),
              "Tiny: imports what is not there: _exit of /usr/lib/libSystem.B.dylib, _fork of "
              "/usr/lib/libSystem.B.dylib");
}

TEST(LoadedImage, SaysOfWhichFileAnImportIsRefused) {
    const Content bytes = programForThisProcess().bytes();
    const MachFile file(bytes, "Tiny");
    const auto refuse = [](std::string_view /*library*/, std::string_view name) -> void* {
        throw MachError(std::string(name) + " is another function");
    };
    EXPECT_EQ(macho::refusalOf([&] { const LoadedImage image(file.slices().front(), refuse); }),
              "Tiny: _exit is another function");
}

TEST(LoadedImage, TakesImportsFromTheirLibrariesOnly) {
    TinyProgram program = programForThisProcess();
    program.imports = {{Import::WeakDefinition, false, "_exit", 0}};
    EXPECT_EQ(refusalOf(program),
              "Tiny: imports _exit from no library in particular, which this loader does not look for");
}

} // namespace
} // namespace kestrune::macho
