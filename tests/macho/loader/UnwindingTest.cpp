#include "tests/macho/loader/CallFrames.h"
#include "tests/macho/loader/CompactUnwind.h"
#include "tests/macho/loader/TinyUnwind.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace kestrune::macho {
namespace {

using testing::SizeIs;

using Content = std::vector<std::uint8_t>;

std::vector<UnwoundFunction> read(const TinyUnwind& unwind) {
    const Content content = unwind.bytes();
    return readCompactUnwind(Bytes(content, "Tiny"));
}

std::string refusalOf(const TinyUnwind& unwind) {
    try {
        read(unwind);
    } catch (const MachError& error) {
        return error.what();
    }
    return "";
}

TEST(CompactUnwind, IsReadFromBothKindsOfPages) {
    const auto functions = read({});
    ASSERT_THAT(functions, SizeIs(5));
    const std::uint32_t starts[] = {0x100, 0x140, 0x180, 0x200, 0x240, TinyUnwind::End};
    const std::uint32_t encodings[] = {0x01000000, 0x01000000, 0x02020000, 0x03040000, 0x04000000};
    for (std::size_t index = 0; index < functions.size(); ++index) {
        EXPECT_EQ(functions[index].start, starts[index]);
        EXPECT_EQ(functions[index].end, starts[index + 1]);
        EXPECT_EQ(functions[index].encoding, encodings[index]);
        EXPECT_EQ(functions[index].personality.has_value(), index == 1);
        EXPECT_EQ(functions[index].languageData.has_value(), index == 1);
    }
    EXPECT_EQ(functions[1].personality, TinyUnwind::Personality);
    EXPECT_EQ(functions[1].languageData, TinyUnwind::LanguageData);
}

Content keptForTheFuzzer(const std::string& name) {
    std::ifstream file(KESTRUNE_LOADER_FILES "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(CompactUnwind, IsKeptForTheFuzzer) {
    EXPECT_EQ(keptForTheFuzzer("unwind-info"), TinyUnwind{}.bytes());
    EXPECT_EQ(keptForTheFuzzer("unwind-info-arm64"), TinyUnwind::ofArm64().bytes());
}

TEST(CompactUnwind, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(refusalOf({.version = 2}), "Tiny: has the version 2");
    EXPECT_EQ(refusalOf({.firstPageKind = 4}), "Tiny: has a page of the kind 4");
    EXPECT_EQ(refusalOf({.dataOf = 0x144}), "Tiny: has no data for the function at 0x140");
}

TEST(CompactUnwind, DoesNotReadBehindItsEnd) {
    const Content whole = TinyUnwind{}.bytes();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Bytes cut(std::span<const std::uint8_t>(whole).first(size), "Tiny");
        EXPECT_THROW(readCompactUnwind(cut), MachError) << size << " of " << whole.size() << " bytes";
    }
}

// Four bytes into the function with the large frame stands its size.
Content imageWithFrameOf(std::uint32_t size) {
    Content image(0x400);
    std::memcpy(&image.at(0x204), &size, sizeof(size));
    return image;
}

Content framesFor(const TinyUnwind& unwind, const Content& image, Processor processor = Processor::x86_64) {
    const Bytes memory(image, "Image");
    CallFrames frames(memory, processor);
    for (const UnwoundFunction& function : read(unwind)) {
        frames.add(function);
    }
    return frames.finish();
}

// The entries of a section .eh_frame, without their lengths.
std::vector<Content> entriesIn(const Content& section) {
    std::vector<Content> entries;
    for (std::size_t place = 0; place + 4 < section.size();) {
        std::uint32_t length = 0;
        std::memcpy(&length, &section.at(place), sizeof(length));
        place += 4;
        entries.emplace_back(section.begin() + static_cast<std::ptrdiff_t>(place),
                             section.begin() + static_cast<std::ptrdiff_t>(place + length));
        place += length;
    }
    return entries;
}

// What stands behind the description of which function it is.
Content instructionsOf(const Content& entry, std::size_t sizeOfLanguageData = 0) {
    return {entry.begin() + 4 + 8 + 8 + 1 + static_cast<std::ptrdiff_t>(sizeOfLanguageData), entry.end()};
}

Content padded(Content instructions, const Content& like) {
    instructions.resize(like.size());
    return instructions;
}

TEST(CallFrames, SayWhatTheCompactFormSays) {
    const auto entries = entriesIn(framesFor({}, imageWithFrameOf(0x1008)));
    // A common entry, the first function, another common entry with the personality, three functions; nothing
    // for what DWARF has already.
    ASSERT_THAT(entries, SizeIs(6));
    const Content withFramePointer = {0x0C, 6, 16, 0x86, 2};
    EXPECT_EQ(instructionsOf(entries[1]), padded(withFramePointer, instructionsOf(entries[1])));
    EXPECT_EQ(instructionsOf(entries[3], 8), padded(withFramePointer, instructionsOf(entries[3], 8)));
    EXPECT_EQ(instructionsOf(entries[4]), padded({0x0C, 7, 16}, instructionsOf(entries[4])));
    EXPECT_EQ(instructionsOf(entries[5]), padded({0x0C, 7, 0x88, 0x20}, instructionsOf(entries[5])));
}

TEST(CallFrames, SayWhereRegistersAreSaved) {
    // rbx and r14 below the frame pointer, whose words are counted from the lowest.
    auto entries = entriesIn(framesFor({.encoding = 0x01020021}, imageWithFrameOf(0)));
    EXPECT_EQ(instructionsOf(entries[1]),
              padded({0x0C, 6, 16, 0x86, 2, 0x83, 4, 0x8E, 3}, instructionsOf(entries[1])));
    // Three pushed: of six registers the second, then of the rest the first and the fourth: r12, rbx, rbp.
    entries = entriesIn(framesFor({.frameless = 0x02040C00 | (1 * 20 + 0 * 4 + 3)}, imageWithFrameOf(0)));
    EXPECT_EQ(instructionsOf(entries[4]),
              padded({0x0C, 7, 32, 0x8C, 4, 0x83, 3, 0x86, 2}, instructionsOf(entries[4])));
}

// On arm64 the frame begins where it ended for the caller, and the return address is in a register.
TEST(CallFrames, SayWhatTheCompactFormSaysOnArm64) {
    const Content image(0x400);
    const auto entries = entriesIn(framesFor(TinyUnwind::ofArm64(), image, Processor::arm64));
    ASSERT_THAT(entries, SizeIs(6));
    // No other entry, version, augmentation and its end, factors, the return address, one byte of
    // augmentation.
    const Content common = {0, 0, 0, 0, 1, 'z', 'R', 0, 1, 0x78, 30, 1, 0, 0x0C, 31, 0};
    EXPECT_EQ(entries[0], padded(common, entries[0]));
    const Content withFramePointer = {0x0C, 29, 16, 0x9D, 2, 0x9E, 1};
    EXPECT_EQ(instructionsOf(entries[1]), padded(withFramePointer, instructionsOf(entries[1])));
    EXPECT_EQ(instructionsOf(entries[3], 8), padded(withFramePointer, instructionsOf(entries[3], 8)));
    EXPECT_EQ(instructionsOf(entries[4]), padded({0x0C, 31, 16}, instructionsOf(entries[4])));
}

TEST(CallFrames, SayWherePairsOfRegistersAreSavedOnArm64) {
    const Content image(0x400);
    auto unwind = TinyUnwind::ofArm64();
    unwind.frameless = 0x02103802; // 16 * 0x103 bytes, with x21 and x22, and v14 and v15
    const auto entries = entriesIn(framesFor(unwind, image, Processor::arm64));
    // Each pair is below the one before: x19 and x20, x27 and x28, v8 and v9, v14 and v15. Numbers from 64 on
    // do not fit into the instruction.
    const Content withFramePointer = {0x0C, 29, 16, 0x9D, 2, 0x9E, 1, 0x93, 3,  0x94, 4, 0x9B, 5, 0x9C,
                                      6,    5,  72, 7,    5, 73,   8, 5,    78, 9,    5, 79,   10};
    EXPECT_EQ(instructionsOf(entries[5]), padded(withFramePointer, instructionsOf(entries[5])));
    const Content without = {0x0C, 31, 0xB0, 0x20, 0x95, 1, 0x96, 2, 5, 78, 3, 5, 79, 4};
    EXPECT_EQ(instructionsOf(entries[4]), padded(without, instructionsOf(entries[4])));
}

std::string refusalOf(const TinyUnwind& unwind, const Content& image,
                      Processor processor = Processor::x86_64) {
    try {
        framesFor(unwind, image, processor);
    } catch (const MachError& error) {
        return error.what();
    }
    return "";
}

TEST(CallFrames, RefuseWhatTheyDoNotKnow) {
    EXPECT_EQ(refusalOf({.encoding = 0x05000000}, imageWithFrameOf(0)),
              "Image: has a function with the encoding 0x5000000");
    EXPECT_EQ(refusalOf({.encoding = 0x01000007}, imageWithFrameOf(0)),
              "Image: has a function with the encoding 0x1000007");
    EXPECT_EQ(refusalOf({.encoding = 0x02021C00}, imageWithFrameOf(0)),
              "Image: has a function with 7 saved registers");
    EXPECT_EQ(refusalOf({}, Content(0x10)).substr(0, 7), "Image: ");
    EXPECT_EQ(refusalOf({.encoding = 0x01000000}, Content(0x400), Processor::arm64),
              "Image: has a function with the encoding 0x1000000");
    EXPECT_EQ(refusalOf({.encoding = 0x05000000}, Content(0x400), Processor::arm64),
              "Image: has a function with the encoding 0x5000000");
}

} // namespace
} // namespace kestrune::macho
