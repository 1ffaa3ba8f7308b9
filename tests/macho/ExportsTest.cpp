#include "tests/macho/Exports.h"

#include "tests/macho/Refusal.h"
#include "tests/macho/TinyProgram.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

std::map<std::string, std::uint64_t> exportsOf(const Content& bytes) {
    return readExports(MachFile(bytes, "Tiny").slices().front());
}

TEST(Exports, AreNamesWithTheirAddresses) {
    const Content bytes = TinyProgram().bytes();
    const auto exports = exportsOf(bytes);
    ASSERT_EQ(exports.size(), 1U);
    EXPECT_EQ(exports.at("_main"), MachFile(bytes, "Tiny").slices().front().entryPoint());
}

TEST(Exports, AreAbsentWithoutTheirCommand) {
    Content bytes = TinyProgram().bytes();
    poke<std::uint32_t>(bytes, placeOf(bytes, Command::exportsTrie) + 12, 0);
    EXPECT_TRUE(exportsOf(bytes).empty());
}

// A root that has nothing itself and one branch, and what the branch leads to.
std::uint64_t placeOfTrie(const Content& bytes) {
    const auto content = MachFile(bytes, "").slices().front().linkEditData(Command::exportsTrie, "");
    return static_cast<std::uint64_t>(content->all().data() - bytes.data());
}
constexpr std::uint64_t Branch = 8;
constexpr std::uint64_t Leaf = 9;

TEST(Exports, LeaveOutWhatAnotherLibraryDefines) {
    Content bytes = TinyProgram().bytes();
    poke<std::uint8_t>(bytes, placeOfTrie(bytes) + Leaf + 1, 8);
    EXPECT_TRUE(exportsOf(bytes).empty());
}

class ExportsRefuse : public testing::TestWithParam<BrokenFile> {};

TEST_P(ExportsRefuse, AndSayWhatAndWhere) {
    Content bytes = TinyProgram().bytes();
    GetParam().breakIt(bytes);
    EXPECT_EQ(refusalOf([&] { exportsOf(bytes); }), "Tiny: the exports: " + GetParam().message);
}

const BrokenFile BrokenExports[] = {
    {"ABranchToItsRoot", [](Content& bytes) { poke<std::uint8_t>(bytes, placeOfTrie(bytes) + Branch, 0); },
     "the node at 0x0 is reached twice"},
    {"ABranchToNowhere", [](Content& bytes) { poke<std::uint8_t>(bytes, placeOfTrie(bytes) + Branch, 0x7F); },
     "a number would start at 0x7f of 0xe bytes"},
    {"ANumberWithoutAnEnd",
     [](Content& bytes) { poke<std::uint64_t>(bytes, placeOfTrie(bytes) + Leaf, ~std::uint64_t{0}); },
     "a number at 0xe would have 0x1 bytes, of which 0x0 are there"},
    {"AnExportThatIsTooLarge",
     [](Content& bytes) { poke<std::uint8_t>(bytes, placeOfTrie(bytes) + Leaf, 0x7F); },
     "an export at 0xa would have 0x7f bytes, of which 0x4 are there"},
};
INSTANTIATE_TEST_SUITE_P(Files, ExportsRefuse, testing::ValuesIn(BrokenExports), nameOfBroken);

} // namespace
} // namespace kestrune::macho
