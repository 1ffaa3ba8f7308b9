#include "tests/macho/loader/Stub.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

using testing::ElementsAre;

// As an assembler writes what stands beside them.
constexpr std::uint32_t Nop = 0xD503201F;
constexpr std::uint32_t BrX16 = 0xD61F0200;

constexpr std::uint64_t There = 0x1122334455667788;
constexpr std::uint64_t Function = 0x99AABBCCDDEEFF00;

TEST(Stub, LoadsBothAddressesAndGoesOn) {
    EXPECT_THAT((Stub{{}, There, Function}.code()),
                ElementsAre(0x58000091, // ldr x17, #16
                            0x580000B0, // ldr x16, #20
                            BrX16, Nop, 0x55667788, 0x11223344, 0xDDEEFF00, 0x99AABBCC));
}

TEST(Stub, RunsItsInstructionsFirst) {
    EXPECT_THAT((Stub{{0x53001C42}, There, Function}.code()), // uxtb w2, w2
                ElementsAre(0x53001C42,
                            0x58000071, // ldr x17, #12
                            0x58000090, // ldr x16, #16
                            BrX16, 0x55667788, 0x11223344, 0xDDEEFF00, 0x99AABBCC));
}

} // namespace
} // namespace kestrune::macho
