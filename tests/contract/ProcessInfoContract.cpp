#include "platform/ProcessInfo.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

TEST(ProcessInfoContract, TellsAllThreeNumbersOfTheSystemsVersion) {
    const World world;
    const OperatingSystemVersion expected = world.operatingSystemVersion();
    const OperatingSystemVersion version = ProcessInfo::processInfo().operatingSystemVersion();
    EXPECT_GE(version.majorVersion, 13);
    EXPECT_EQ(version.majorVersion, expected.majorVersion);
    EXPECT_EQ(version.minorVersion, expected.minorVersion);
    EXPECT_EQ(version.patchVersion, expected.patchVersion);
}

} // namespace
} // namespace kestrune::contract
