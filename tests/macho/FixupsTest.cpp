#include "tests/macho/Fixups.h"

#include "tests/macho/Refusal.h"
#include "tests/macho/TinyProgram.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

Fixups fixupsOf(const Content& bytes) { return readFixups(MachFile(bytes, "Tiny").slices().front()); }

TinyProgram programWithImports() {
    TinyProgram program;
    program.libraries = {"/usr/lib/libSystem.B.dylib", "/usr/lib/libobjc.A.dylib"};
    program.imports = {{1, false, "_exit", 0},
                       {2, true, "_objc_retain", 0},
                       {Import::WeakDefinition, false, "__Znwm", 0},
                       {Import::AnyLibrary, false, "_any", 0}};
    return program;
}

TEST(Fixups, NameTheImportsAndTheirLibraries) {
    const Content bytes = programWithImports().bytes();
    const auto imports = fixupsOf(bytes).imports;
    ASSERT_EQ(imports.size(), 4U);
    EXPECT_EQ(imports[1].name, "_objc_retain");
    EXPECT_EQ(imports[1].ordinal, 2);
    EXPECT_TRUE(imports[1].isWeak);
    EXPECT_FALSE(imports[0].isWeak);
    EXPECT_EQ(imports[2].ordinal, Import::WeakDefinition);
    EXPECT_EQ(imports[3].ordinal, Import::AnyLibrary);
}

class FixupsInBothFormats : public testing::TestWithParam<std::uint16_t> {};

TEST_P(FixupsInBothFormats, AreAPointerToTheCodeAndOneToEachImport) {
    TinyProgram program = programWithImports();
    program.pointerFormat = GetParam();
    const Content bytes = program.bytes();
    const auto fixups = fixupsOf(bytes).fixups;
    ASSERT_EQ(fixups.size(), 5U);
    EXPECT_EQ(fixups[0].address, TinyProgram::DataAddress);
    EXPECT_EQ(std::get<Rebase>(fixups[0].value).target, MachFile(bytes, "").slices().front().entryPoint());
    for (std::size_t index = 1; index < fixups.size(); ++index) {
        EXPECT_EQ(fixups[index].address, TinyProgram::DataAddress + 8 * index);
        EXPECT_EQ(std::get<Bind>(fixups[index].value).import, index - 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Pointers, FixupsInBothFormats, testing::Values(2, 6));

TEST(Fixups, AreAbsentWithoutTheirCommand) {
    Content bytes = TinyProgram().bytes();
    constexpr std::uint32_t SourceVersion = 0x2A;
    poke<std::uint32_t>(bytes, placeOf(bytes, Command::chainedFixups), SourceVersion);
    const Fixups fixups = fixupsOf(bytes);
    EXPECT_TRUE(fixups.imports.empty());
    EXPECT_TRUE(fixups.fixups.empty());
}

class FixupsRefuse : public testing::TestWithParam<BrokenFile> {};

TEST_P(FixupsRefuse, AndSayWhatAndWhere) {
    Content bytes = TinyProgram().bytes();
    GetParam().breakIt(bytes);
    EXPECT_EQ(refusalOf([&] { fixupsOf(bytes); }), "Tiny: " + GetParam().message);
}

std::uint64_t placeOfLinkEdit(const Content& bytes) {
    return MachFile(bytes, "").slices().front().segment("__LINKEDIT")->offset;
}

// The chains of the data segment stand behind the header and the list of four segments.
std::uint64_t placeOfChains(const Content& bytes) { return placeOfLinkEdit(bytes) + 28 + 20; }

std::uint64_t placeOfPointers(const Content& bytes) {
    return MachFile(bytes, "").slices().front().segment("__DATA")->offset;
}

const BrokenFile BrokenFixups[] = {
    {"Opcodes",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOf(bytes, Command::chainedFixups), 0x80000022); },
     "has LC_DYLD_INFO, whose opcodes are not read; link it for macOS 13, which takes chained fixups"},
    {"AnotherVersion", [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes), 1); },
     "the chained fixups: have the version 1"},
    {"AnotherFormatOfImports",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 20, 4); },
     "the chained fixups: have imports in the format 4"},
    {"CompressedNames", [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 24, 1); },
     "the chained fixups: have compressed names"},
    {"MoreImportsThanThereIsRoomFor",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 16, 100); },
     "the chained fixups: the imports at 0x48 would have 0x190 bytes, of which 0xb are there"},
    {"AnImportOfALibraryThatIsNotThere",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 0x48, 1 << 9 | 7); },
     "the chained fixups: the import _exit is of library 7 of 1"},
    {"AnImportWithoutAName",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 0x48, 100 << 9 | 1); },
     "the chained fixups: the name of an import would start at 0xb0 of 0x53 bytes"},
    {"MoreSegmentsThanThereAre",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfLinkEdit(bytes) + 28, 5); },
     "the chained fixups: are for 5 segments, of which there are 4"},
    {"PagesOfAnOddSize", [](Content& bytes) { poke<std::uint16_t>(bytes, placeOfChains(bytes) + 4, 0x800); },
     "the chained fixups: the segment __DATA has pages of 2048 bytes"},
    {"SignedPointers", [](Content& bytes) { poke<std::uint16_t>(bytes, placeOfChains(bytes) + 6, 1); },
     "the chained fixups: the segment __DATA has pointers in the format 1, which is not read"},
    {"AnotherPlaceOfTheSegment",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfChains(bytes) + 8, 0); },
     "the chained fixups: the segment __DATA is not where its chains are"},
    {"MorePagesThanAreListed",
     [](Content& bytes) { poke<std::uint16_t>(bytes, placeOfChains(bytes) + 20, 2); },
     "the chained fixups: the start of a page at 0x18 would have 0x2 bytes, of which 0x0 are there"},
    {"AChainThatStartsOutsideTheSegment",
     [](Content& bytes) { poke<std::uint16_t>(bytes, placeOfChains(bytes) + 22, 0x10); },
     "the chained fixups: the fixup at 0x100010010 is not within its page of the segment __DATA"},
    {"AChainThatLeavesTheSegment",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfPointers(bytes), std::uint64_t{3} << 51); },
     "the chained fixups: the fixup at 0x10001000c is not within its page of the segment __DATA"},
    {"APointerToNowhere", [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfPointers(bytes), 0x80000); },
     "the chained fixups: the fixup at 0x100010000 points at 0x100080000, which is in no segment"},
    {"AnImportThatIsNotThere",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfPointers(bytes), std::uint64_t{1} << 63 | 1); },
     "the chained fixups: the fixup at 0x100010000 is for import 1 of 1"},
};
INSTANTIATE_TEST_SUITE_P(Files, FixupsRefuse, testing::ValuesIn(BrokenFixups), nameOfBroken);

} // namespace
} // namespace kestrune::macho
