#include "base/Fatal.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <string>
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

void say(const std::string& what) { std::fprintf(stderr, "reported: %s\n", what.c_str()); }

TEST(FatalDeathTest, TellsTheReporterTheSameLine) {
    setFatalErrorReporter(say);
    EXPECT_EXIT(fatal("The moon is not made of cheese."), testing::KilledBySignal(SIGABRT),
                "^Fatal error: The moon is not made of cheese\\.\n"
                "reported: Fatal error: The moon is not made of cheese\\.\n$");
    EXPECT_EXIT(fatal("It is not.", "sky/Moon"), testing::KilledBySignal(SIGABRT),
                "\nreported: sky/Moon: Fatal error: It is not\\.\n$");
    setFatalErrorReporter({});
}

TEST(FatalDeathTest, TellsNobodyAfterTheReporterWasTakenBack) {
    setFatalErrorReporter(say);
    setFatalErrorReporter({});
    EXPECT_EXIT(fatal("first"), testing::KilledBySignal(SIGABRT), "^Fatal error: first\n$");
}

TEST(FatalDeathTest, TellsNobodyOfWhatIsFatalInTheReporter) {
    setFatalErrorReporter([](const std::string& line) { fatal("Second to " + line); });
    EXPECT_EXIT(fatal("first"), testing::KilledBySignal(SIGABRT),
                "^Fatal error: first\nFatal error: Second to Fatal error: first\n$");
    setFatalErrorReporter({});
}

} // namespace
} // namespace kestrune
