#include "tests/mac/Skips.h"

#include "mac/objc/Pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

namespace kestrune::native {

namespace {

// Tests whose very first steps would change what is the user's, or which a world cannot stop in time.
struct OffLimits {
    std::string_view test; // how its full name begins
    const char* lacking;
};

constexpr const char* Question = "question for the user that a test may ask";
constexpr const char* Permission = "Accessibility permission for a test";

constexpr OffLimits Untouchable[] = {
    {"AccessibilityTrustContract.ListsTheApplicationAndAsksTheUser", Question},
    {"AppServiceContract.", "login item that a test may change"},
    {"BundleContract.HasNoIdentifierWhenTheInfoFileHasNone", "bundle without an identifier"},
    {"EventTapContract.", Permission},
    {"EventTapOrderContract.", Permission},
    {"FatalErrorDeathTest.", "display as large as the one that is fatal"},
    {"ReadOut.OfTheWizardIsWhatIsOfferedNext", Question},
    {"RunLoopContract.", Permission},
    {"Reasons/TapDisabledContract.", Permission},
    {"WorkspaceContract.", "URL that a test may open"},
};

// GoogleTest's macro returns from the function that it is in.
void skip(const std::string& lacking) { GTEST_SKIP() << "A Mac has no " << lacking << "."; }

class Doorkeeper : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& test) override {
        const std::string name = std::string(test.test_suite_name()) + "." + test.name();
        const auto found = std::find_if(std::begin(Untouchable), std::end(Untouchable),
                                        [&](const OffLimits& row) { return name.starts_with(row.test); });
        if (found != std::end(Untouchable)) {
            skip(found->lacking);
        }
    }
};

// Around all tests, as GoogleTest's own main function knows nothing of Objective-C. What is to die is started
// anew: Apple's runtime may end a process that was only forked when a class is first used there.
class Surroundings : public testing::Environment {
    void SetUp() override {
        pool_.emplace();
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        testing::UnitTest::GetInstance()->listeners().Append(new Doorkeeper);
    }
    void TearDown() override { pool_.reset(); }

    std::optional<mac::Pool> pool_;
};

[[maybe_unused]] testing::Environment* const Around = testing::AddGlobalTestEnvironment(new Surroundings);

} // namespace

// GoogleTest takes this exception for one whose reason it was told.
[[noreturn]] void endTest() {
    using Result = testing::TestPartResult;
    throw testing::AssertionException(Result(Result::kSkip, __FILE__, __LINE__, "The test is skipped."));
}

void cannotArrange(const std::string& lacking) {
    skip(lacking);
    endTest();
}

void stopIfSkipped() {
    if (testing::Test::IsSkipped()) {
        endTest();
    }
}

} // namespace kestrune::native
