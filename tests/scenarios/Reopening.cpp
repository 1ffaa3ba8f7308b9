// A user whose menu bar has no room for the icon opens Kestrune again: the same story on every implementation
// of the seam.
#include "tests/contract/World.h"
#include "tests/scenarios/LaunchedApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kestrune::scenarios {
namespace {

using contract::Trust;
using testing::ElementsAre;

class Reopening : public testing::Test {
protected:
    void launch(Trust trust) {
        world_.setTrust(trust);
        application_.emplace(world_);
    }

    // Nothing is left for the system to do.
    std::vector<std::string> titlesAfterReopening() {
        EXPECT_FALSE(world_.reopenApplication());
        world_.runMainQueue();
        std::vector<std::string> titles;
        for (const contract::ShownWindow& window : world_.shownWindows()) {
            titles.push_back(window.title);
        }
        return titles;
    }

    contract::World world_{shippedBundle()};
    std::optional<LaunchedApplication> application_;
};

TEST_F(Reopening, OpensSettingsOnceAndAgainAfterTheyWereClosed) {
    launch(Trust::granted);
    EXPECT_THAT(titlesAfterReopening(), ElementsAre("Kestrune Settings"));
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    EXPECT_THAT(titlesAfterReopening(), ElementsAre("Kestrune Settings"));
    world_.clickCloseButton();
    world_.runMainQueue();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_THAT(titlesAfterReopening(), ElementsAre("Kestrune Settings"));
}

TEST_F(Reopening, OpensTheWizardBeforeTheSetupIsComplete) {
    launch(Trust::notListed);
    world_.clickCloseButton();
    EXPECT_THAT(titlesAfterReopening(), ElementsAre("Welcome to Kestrune"));
}

} // namespace
} // namespace kestrune::scenarios
