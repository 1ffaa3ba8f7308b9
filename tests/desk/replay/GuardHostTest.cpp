#include "desk/replay/GuardHost.h"

#include "sim/Session.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

class GuardHostTest : public ::testing::Test {
protected:
    static sim::SessionOptions options() {
        sim::SessionOptions result;
        result.displays = {sim::makeDisplay(1, "One", {0, 0, 100, 100}),
                           sim::makeDisplay(2, "Two", {100, 0, 100, 100})};
        return result;
    }

    sim::Session session{options()};
};

TEST_F(GuardHostTest, StartsTheGuardOnlyEnabledTrustedAndNotRunning) {
    GuardHost host;
    session.accessibility().setPermission(sim::Permission::switchedOff);
    host.startIfAllowed();
    EXPECT_FALSE(host.guard().isRunning());
    session.accessibility().setPermission(sim::Permission::granted);
    session.defaults().set("isEnabled", sim::PropertyList{false});
    host.startIfAllowed();
    EXPECT_FALSE(host.guard().isRunning());
    session.defaults().set("isEnabled", std::nullopt);
    host.startIfAllowed();
    host.startIfAllowed();
    EXPECT_TRUE(host.guard().isRunning());
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST_F(GuardHostTest, SwitchesTheGuardOffAndOn) {
    GuardHost host;
    host.startIfAllowed();
    host.setEnabled(false);
    EXPECT_FALSE(host.guard().isRunning());
    EXPECT_FALSE(host.preferences().isEnabled());
    host.setEnabled(true);
    EXPECT_TRUE(host.guard().isRunning());
}

TEST_F(GuardHostTest, PinsADisplayWithoutANewTap) {
    GuardHost host;
    host.startIfAllowed();
    host.pin(sim::uuidOfDisplay(2));
    EXPECT_EQ(host.guard().pinnedScreen()->displayID, 2U);
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST_F(GuardHostTest, FollowsTheDisplays) {
    GuardHost host;
    session.changeDisplays({sim::makeDisplay(3, "Three", {0, 0, 100, 100})});
    host.displaysChanged();
    EXPECT_EQ(host.guard().pinnedScreen()->displayID, 3U);
}

TEST_F(GuardHostTest, TakesTheTapWithIt) {
    {
        GuardHost host;
        host.startIfAllowed();
        EXPECT_EQ(session.taps().count(), 1U);
    }
    EXPECT_EQ(session.taps().count(), 0U);
    EXPECT_EQ(session.liveObjects(), 0);
}

} // namespace
} // namespace kestrune::desk
