#include "tests/macho/MachFile.h"

#include "tests/macho/Refusal.h"
#include "tests/macho/TinyProgram.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

TinyProgram intelProgram() {
    TinyProgram program;
    program.processor = Processor::x86_64;
    return program;
}

MachSlice onlySliceOf(const Content& bytes) { return MachFile(bytes, "Tiny").slices().front(); }

TEST(MachFile, HoldsOneProgramForOneProcessor) {
    const Content bytes = TinyProgram().bytes();
    const MachFile file(bytes, "Tiny");
    ASSERT_EQ(file.slices().size(), 1U);
    EXPECT_EQ(file.slices().front().processor(), Processor::arm64);
    EXPECT_EQ(file.slices().front().type(), FileType::executable);
    EXPECT_EQ(file.slices().front().name(), "Tiny");
}

TEST(MachFile, HoldsAProgramForEachOfTwoProcessors) {
    const Content bytes = universal({TinyProgram(), intelProgram()});
    const MachFile file(bytes, "Tiny");
    ASSERT_EQ(file.slices().size(), 2U);
    EXPECT_EQ(file.slice(Processor::x86_64).content().all().size(), intelProgram().bytes().size());
    EXPECT_EQ(file.slice(Processor::arm64).name(), "Tiny: arm64 half");
}

TEST(MachFile, SaysWhichProcessorItIsFor) {
    const Content bytes = TinyProgram().bytes();
    const MachFile file(bytes, "Tiny");
    EXPECT_EQ(refusalOf([&] { file.slice(Processor::x86_64); }),
              "Tiny: has no half for x86_64, but one for arm64");
}

TEST(MachSlice, HasItsSegmentsAndSectionsInTheOrderOfTheFile) {
    const Content bytes = TinyProgram().bytes();
    const MachSlice slice = onlySliceOf(bytes);
    std::vector<std::string_view> names;
    for (const Segment& segment : slice.segments()) {
        names.push_back(segment.name);
    }
    EXPECT_EQ(names, (std::vector<std::string_view>{"__PAGEZERO", "__TEXT", "__DATA", "__LINKEDIT"}));
    const Segment& text = *slice.segment("__TEXT");
    EXPECT_EQ(text.protection, Segment::Readable | Segment::Executable);
    ASSERT_EQ(text.sections.size(), 2U);
    EXPECT_EQ(text.sections[0].type(), Section::InitializerOffsets);
    EXPECT_EQ(slice.contents(text.sections[1]).size(), TinyProgram().codeSize);
    EXPECT_EQ(slice.contents(slice.segment("__DATA")->sections[1]).size(), 0U);
    EXPECT_EQ(slice.segment("__OTHER"), nullptr);
}

TEST(MachSlice, KnowsTheSegmentThatHoldsAnAddress) {
    const Content bytes = TinyProgram().bytes();
    const MachSlice slice = onlySliceOf(bytes);
    EXPECT_EQ(slice.loadAddress(), TinyProgram::LoadAddress);
    EXPECT_EQ(slice.segmentHolding(TinyProgram::DataAddress)->name, "__DATA");
    EXPECT_EQ(slice.segmentHolding(TinyProgram::DataAddress + 0x4000), nullptr);
    EXPECT_TRUE(slice.segmentHolding(0)->isGuard());
}

TEST(MachSlice, CountsLibrariesInTheOrderOfTheirOrdinals) {
    TinyProgram program;
    program.libraries = {"/usr/lib/libSystem.B.dylib", "/usr/lib/libobjc.A.dylib"};
    const Content bytes = program.bytes();
    const MachSlice slice = onlySliceOf(bytes);
    ASSERT_EQ(slice.libraries().size(), 2U);
    EXPECT_EQ(slice.libraries()[1].installName, "/usr/lib/libobjc.A.dylib");
    EXPECT_FALSE(slice.libraries()[1].isWeak);
}

TEST(MachSlice, HasAVersionAnEntryPointAndASignature) {
    const Content bytes = TinyProgram().bytes();
    const MachSlice slice = onlySliceOf(bytes);
    const auto version = slice.buildVersion();
    ASSERT_TRUE(version.has_value());
    EXPECT_EQ(version->platform, BuildVersion::MacOS);
    EXPECT_EQ(version->minimumSystem, (Version{13, 0, 0}));
    EXPECT_EQ(version->minimumSystem.text(), "13.0");
    EXPECT_EQ((Version{13, 5, 1}).text(), "13.5.1");
    const Section& code = slice.segment("__TEXT")->sections.back();
    EXPECT_EQ(slice.entryPoint(), code.address);
    EXPECT_EQ(slice.codeSignature()->size(), 16U);
}

TEST(MachSlice, OfALibraryHasNoEntryPoint) {
    TinyProgram program;
    program.type = FileType::library;
    const Content bytes = program.bytes();
    EXPECT_EQ(onlySliceOf(bytes).entryPoint(), std::nullopt);
}

TEST(MachFile, ThatEndsEarlyIsRefusedWhereverItEnds) {
    const Content whole = universal({intelProgram(), TinyProgram()});
    // What follows is filling.
    const auto last = MachFile(whole, "Tiny").slices().back().content().all();
    const std::size_t end = static_cast<std::size_t>(last.data() - whole.data()) + last.size();
    for (std::size_t size = 0; size < end; ++size) {
        const Content bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_NE(refusalOf([&] { MachFile(bytes, "Tiny"); }), "") << size;
    }
}

class MachFileRefuses : public testing::TestWithParam<BrokenFile> {};

TEST_P(MachFileRefuses, AndSaysWhatAndWhere) {
    Content bytes = TinyProgram().bytes();
    GetParam().breakIt(bytes);
    const std::string message = refusalOf([&] {
        const MachSlice slice = onlySliceOf(bytes);
        slice.entryPoint();
        slice.codeSignature();
    });
    EXPECT_EQ(message, "Tiny: " + GetParam().message);
}

const BrokenFile BrokenFiles[] = {
    {"NothingOfTheKind", [](Content& bytes) { poke<std::uint32_t>(bytes, 0, 0x464C457F); },
     "is no Mach-O file: it starts with 0x464c457f"},
    {"ThirtyTwoBits", [](Content& bytes) { poke<std::uint32_t>(bytes, 0, 0xFEEDFACE); },
     "is a Mach-O file for 32 bits, which no macOS runs any more"},
    {"AnotherProcessor", [](Content& bytes) { poke<std::uint32_t>(bytes, 4, 0x01000012); },
     "is for the processor 0x1000012, which is neither arm64 nor x86_64"},
    {"SignedPointers", [](Content& bytes) { poke<std::uint32_t>(bytes, 8, 0x80000002); },
     "is for a kind of arm64 that is not read, 2"},
    {"AnObjectFile", [](Content& bytes) { poke<std::uint32_t>(bytes, 12, 1); },
     "is a Mach-O file of the type 1, neither a program nor a library"},
    {"MoreCommandsThanThereIsRoomFor", [](Content& bytes) { poke<std::uint32_t>(bytes, 16, 40); },
     "load command 11 at 0x2f8 would have 0x4 bytes, of which 0x0 are there"},
    {"FewerCommandsThanThereAre", [](Content& bytes) { poke<std::uint32_t>(bytes, 16, 1); },
     "the load commands have 72 bytes, not 760"},
    {"ACommandWithoutAnEnd", [](Content& bytes) { poke<std::uint32_t>(bytes, 36, 0); },
     "load command 1 has 0 bytes"},
    {"ASegmentBehindTheEnd",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__DATA") + 40, 0x10000); },
     "the segment __DATA ends at 0x10010, the file at 0x3d0"},
    {"ASegmentWithoutAnEnd",
     [](Content& bytes) {
         poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__DATA") + 48, ~std::uint64_t{0});
     },
     "the segment __DATA ends at no number, the file at 0x3d0"},
    {"ASegmentTooSmallForItsBytes",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__DATA") + 32, 8); },
     "the segment __DATA has 0x10 bytes in the file and 0x8 in memory"},
    {"ASegmentBehindTheLastAddress",
     [](Content& bytes) {
         poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__LINKEDIT") + 24, ~std::uint64_t{1});
     },
     "the segment __LINKEDIT ends behind the last address"},
    {"SegmentsThatShareMemory",
     [](Content& bytes) {
         poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__LINKEDIT") + 24,
                             TinyProgram::DataAddress + 0x100);
     },
     "the segments __DATA and __LINKEDIT share memory from 0x100010100 on"},
    {"SegmentsThatShareBytes",
     [](Content& bytes) {
         const std::uint64_t linkEdit = placeOfSegment(bytes, "__LINKEDIT");
         poke<std::uint64_t>(bytes, linkEdit + 40, 0x348);
         poke<std::uint64_t>(bytes, linkEdit + 48, 8);
     },
     "the segments __DATA and __LINKEDIT share bytes of the file from 0x348 on"},
    {"ASectionOutsideItsSegment",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__DATA") + 72 + 32, 0x1000); },
     "the section __DATA,__data at 0x1000 is not within its segment"},
    {"ASectionAtAnotherPlaceOfTheFile",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfSegment(bytes, "__DATA") + 72 + 48, 0); },
     "the section __DATA,__data is at 0x0 of the file, not at 0x340 as its address has it"},
    {"ASectionBehindWhatTheFileHas",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfSegment(bytes, "__DATA") + 72 + 40, 0x100); },
     "the section __DATA,__data ends behind what the file has of its segment"},
    {"ANumberOfSectionsThatIsNotTheirs",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfSegment(bytes, "__DATA") + 64, 9); },
     "load command 4: has 232 bytes for 9 sections"},
    {"NoSegmentWithTheHeader",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOfSegment(bytes, "__TEXT"), 0x2A); },
     "no segment holds the header"},
    {"AHeaderThatIsLongerThanItsSegment",
     [](Content& bytes) {
         const std::uint64_t text = placeOfSegment(bytes, "__TEXT");
         poke<std::uint32_t>(bytes, text + 72 + 64, Section::ZeroFill);
         poke<std::uint32_t>(bytes, text + 72 + 80 + 64, Section::ZeroFill);
         poke<std::uint64_t>(bytes, text + 48, 0x100);
     },
     "the segment __TEXT ends before the load commands do, at 0x100"},
    {"ALibraryWithoutAName",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOf(bytes, Command::library) + 8, 0x1000); },
     "load command 6: a library's name would start at 0x1000 of 0x38 bytes"},
    {"AnEntryPointOutsideTheCode",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOf(bytes, Command::entryPoint) + 8, 0x4D0); },
     "the entry point 0x4d0 is in no executable segment"},
    {"ASignatureBehindTheEnd",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOf(bytes, Command::codeSignature) + 12, 17); },
     "the code signature at 0x3c0 would have 0x11 bytes, of which 0x10 are there"},
};
INSTANTIATE_TEST_SUITE_P(Files, MachFileRefuses, testing::ValuesIn(BrokenFiles), nameOfBroken);

class UniversalFileRefuses : public testing::TestWithParam<BrokenFile> {};

TEST_P(UniversalFileRefuses, AndSaysWhatAndWhere) {
    Content bytes = universal({TinyProgram(), intelProgram()});
    GetParam().breakIt(bytes);
    EXPECT_EQ(refusalOf([&] { MachFile(bytes, "Tiny"); }), "Tiny: " + GetParam().message);
}

const BrokenFile BrokenUniversalFiles[] = {
    {"AJavaClass", [](Content& bytes) { pokeBig(bytes, 4, 61); },
     "is no Mach-O file: it would hold programs for 61 processors"},
    {"NoProgramAtAll", [](Content& bytes) { pokeBig(bytes, 4, 0); },
     "is no Mach-O file: it would hold programs for 0 processors"},
    {"AnotherProcessor", [](Content& bytes) { pokeBig(bytes, 8, 7); },
     "is for the processor 0x7, which is neither arm64 nor x86_64"},
    {"AHalfBehindTheEnd", [](Content& bytes) { pokeBig(bytes, 8 + 12, 0x10000); },
     "the arm64 half at 0x30 would have 0x10000 bytes, of which 0x7a0 are there"},
    {"AHalfThatIsNotAligned", [](Content& bytes) { pokeBig(bytes, 8 + 8, 0x38); },
     "arm64 half: starts at 0x38, which is no multiple of 2^4"},
    {"AHalfOverTheTable", [](Content& bytes) { pokeBig(bytes, 8 + 8, 0x20); },
     "arm64 half: lies over another part of the file at 0x20"},
    {"AHalfOverAnother", [](Content& bytes) { pokeBig(bytes, 28 + 8, 0x40); },
     "x86_64 half: lies over another part of the file at 0x40"},
    {"AHalfForTheOtherProcessor", [](Content& bytes) { pokeBig(bytes, 28, 0x0100000C); },
     "arm64 half: is a program for x86_64"},
};
INSTANTIATE_TEST_SUITE_P(Files, UniversalFileRefuses, testing::ValuesIn(BrokenUniversalFiles), nameOfBroken);

TEST(MachFile, WithTwoHalvesForOneProcessorIsRefused) {
    const Content bytes = universal({TinyProgram(), TinyProgram()});
    EXPECT_EQ(refusalOf([&] { MachFile(bytes, "Tiny"); }), "Tiny: arm64 half: is there twice");
}

} // namespace
} // namespace kestrune::macho
