#include "tests/gnustep/harness/KnownDifferences.h"

#include "tests/gnustep/harness/Release.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace kestrune::gnustep {

namespace {

constexpr const char* StringOfANumber =
    "stringForKey: gives the text of a number and of a truth value on the Mac; GNUstep gives nil.";
constexpr const char* TooLarge = "doubleValue overflows to infinity on the Mac; GNUstep gives 0.";
constexpr const char* NoHost =
    "A URL without a host has no slashes after its scheme on the Mac; GNUstep writes three.";

// Sources of what the Mac does: docs/MAC_FACTS.md, "What GNUstep was asked".
// None names its releases, as each is of every one that was tried, 0.29 and 0.32.
constexpr KnownDifference KnownDifferences[] = {
    {"Numbers/UserDefaultsConversionContract.ReadsAsAString/", "stringForKey(Key)", "(nullopt)",
     StringOfANumber},
    {"UserDefaultsContract.ReadsATruthValueThatAnotherProcessStored", "stringForKey(Key)", "(nullopt)",
     StringOfANumber},
    {"UserDefaultsContract.ReplacesAnEntryOfAnotherKind", "stringForKey(Key)", "(nullopt)", StringOfANumber},
    {"Strings/UserDefaultsConversionContract.ReadsAsATruthValue/TwoSigns", "boolForKey(Key)",
     "Which is: true", "boolValue skips one sign on the Mac; GNUstep skips every sign."},
    {"Strings/UserDefaultsConversionContract.ReadsAsANumber/TooLarge", "doubleForKey(Key)", "Which is: 0\n",
     TooLarge},
    {"Strings/UserDefaultsConversionContract.ReadsAsANumber/TooLargeAndNegative", "doubleForKey(Key)",
     "Which is: 0\n", TooLarge},
    {"WindowContract.LiesAcrossTheMiddleOnceCentred", "content.minY() + content.height() / 2",
     "actual: 489 vs 500", "center leaves more room below than above on the Mac; GNUstep halves it."},
    {"URLComponentsContract.PutsSchemeAndPathTogether", "textOf(components_)",
     "\"mailto:///support@example.org\"", NoHost},
    {"URLComponentsContract.MakesTheLinkOfABugReport", "textOf(components_)",
     "\"mailto:///support@example.org?subject=Kestrune%20bug%20report&body=Describe%20what%20went%20wrong:"
     "%0A%0A%0A---%0AApp%20version:%202.1%20(57)%0AmacOS:%2014.5.0%0ALocale:%20en_US\"",
     NoHost},
    {"URLComponentsContract.MakesNoURLOfAPathThatWouldBeAHost", "components_.url()", "Actual: true",
     "A path with two slashes in front makes no URL without a host on the Mac; GNUstep makes one."},
    {"URLComponentsContract.EncodesEveryPrintableCharacterInAPathAsTheTableSays", "PlainInPaths",
     "Actual: { \"; @;b\", \"? @?b\" }",
     "A question mark in a path is encoded on the Mac; GNUstep writes it as it is, where a query begins."},
    {"URLComponentsContractDeathTest.StopTheProcessForASchemeThatIsNone", "components_.setScheme(",
     "failed to die", "setScheme: raises an exception on the Mac; GNUstep takes every text."},
    {"NotificationCenterContract.LetsGoOfTheBlockOfAnObserverThatWasRemoved", "watched.expired()",
     "Actual: false",
     "removeObserver: releases the block on the Mac; GNUstep keeps the observation for ever or, from 0.32 "
     "on, each operation that called the block."},
};

bool failsAs(const KnownDifference& difference, const testing::TestResult& result) {
    for (int index = 0; index < result.total_part_count(); ++index) {
        const testing::TestPartResult& part = result.GetTestPartResult(index);
        const std::string message = std::string(part.message()) + "\n";
        if (part.failed() && (message.find(difference.expression) == std::string::npos ||
                              message.find(difference.value) == std::string::npos)) {
            return false;
        }
    }
    return result.Failed();
}

bool ranAsKnown(const testing::TestInfo& test, int release) {
    const std::string name = std::string(test.test_suite_name()) + "." + test.name();
    const KnownDifference* const difference = knownDifference(KnownDifferences, name, release);
    if (difference == nullptr || test.result()->Skipped()) {
        return !test.result()->Failed();
    }
    if (failsAs(*difference, *test.result())) {
        std::printf("%s failed as it is known to: %s\n", name.c_str(), difference->explanation);
        return true;
    }
    std::printf("%s does not fail as it was known to, at %s alone: %s\n", name.c_str(),
                std::string(difference->expression).c_str(), difference->explanation);
    return false;
}

} // namespace

const KnownDifference* knownDifference(std::span<const KnownDifference> differences, std::string_view test,
                                       int release) {
    const auto known =
        std::find_if(differences.begin(), differences.end(), [&](const KnownDifference& candidate) {
            const bool isOfTest =
                candidate.test.ends_with('/') ? test.starts_with(candidate.test) : test == candidate.test;
            return isOfTest && candidate.from <= release && release <= candidate.until;
        });
    return known != differences.end() ? &*known : nullptr;
}

bool ranAsKnown(int status) {
    const int thisRelease = release();
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    // What failed outside of a test is not known.
    bool isAsKnown = status == 0 || (all.failed_test_count() > 0 && !all.ad_hoc_test_result().Failed());
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite) {
        const testing::TestSuite& tests = *all.GetTestSuite(suite);
        for (int index = 0; index < tests.total_test_count(); ++index) {
            const testing::TestInfo& test = *tests.GetTestInfo(index);
            isAsKnown = (!test.should_run() || ranAsKnown(test, thisRelease)) && isAsKnown;
        }
    }
    return isAsKnown;
}

} // namespace kestrune::gnustep
