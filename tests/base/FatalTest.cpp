#include "base/Fatal.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string_view>

namespace kestrune {
namespace {

TEST(FatalDeathTest, AbortsAndSaysWhichAssumptionWasBroken) {
    EXPECT_EXIT(fatal("The moon is not made of cheese."), testing::KilledBySignal(SIGABRT),
                "^Fatal error: The moon is not made of cheese\\.\n$");
}

TEST(FatalDeathTest, WritesOnlyTheTextThatTheMessageSpans) {
    constexpr std::string_view text = "first part, second part";
    EXPECT_EXIT(fatal(text.substr(0, 10)), testing::KilledBySignal(SIGABRT), "^Fatal error: first part\n$");
}

TEST(FatalDeathTest, NamesThePlaceOfTheMistakeIfItIsGivenOne) {
    EXPECT_EXIT(fatal("The moon is not made of cheese.", "sky/Moon"), testing::KilledBySignal(SIGABRT),
                "^sky/Moon: Fatal error: The moon is not made of cheese\\.\n$");
}

} // namespace
} // namespace kestrune
