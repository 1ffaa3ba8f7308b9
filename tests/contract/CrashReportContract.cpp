#include "platform/CrashReport.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

TEST(CrashReportContract, SaysNothingByItself) {
    const World world;
    EXPECT_EQ(world.crashReportMessage(), "");
}

TEST(CrashReportContract, HasTheLatestMessageWhole) {
    const World world;
    setCrashReportMessage("The tea is cold.");
    EXPECT_EQ(world.crashReportMessage(), "The tea is cold.");
    {
        const std::string gone = "100 %s sure \xE2\x80\x94 " + std::string(2000, 'x') + ".";
        setCrashReportMessage(gone);
    }
    EXPECT_EQ(world.crashReportMessage(), "100 %s sure \xE2\x80\x94 " + std::string(2000, 'x') + ".");
}

} // namespace
} // namespace kestrune::contract
