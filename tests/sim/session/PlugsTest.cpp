#include "sim/session/Plugs.h"

#include <gtest/gtest.h>

#include <set>

namespace kestrune::sim {
namespace {

class PlugsTest : public testing::Test {
protected:
    static SessionOptions options() {
        SessionOptions result;
        result.displays = {makeDisplay(1, "One", {0, 0, 100, 80}), makeDisplay(2, "Two", {100, -10, 60, 100}),
                           makeDisplay(3, "Three", {160, 0, 100, 80})};
        return result;
    }

    // The name of what came or went; empty when nothing did.
    std::string apply(std::optional<PlugChange> change) {
        if (!change) {
            return "";
        }
        session.changeDisplays(std::move(change->arrangement));
        return change->name;
    }

    std::vector<Display> connected() { return session.displays().connected(); }

    Session session{options()};
    Plugs plugs{session};
};

TEST_F(PlugsTest, UnplugTheDisplayAtAPlace) {
    EXPECT_EQ(apply(plugs.unplug({130, 50})), "Two");
    ASSERT_EQ(connected().size(), 2U);
    EXPECT_EQ(connected()[1].bounds, (Rect{100, 0, 100, 80})) << "its neighbours move together";
}

TEST_F(PlugsTest, UnplugNothingBesideTheDisplays) {
    EXPECT_FALSE(plugs.unplug({-5, 50}));
    EXPECT_EQ(connected(), options().displays);
}

TEST_F(PlugsTest, PutTheDisplaysBackInReverseOrder) {
    apply(plugs.unplug({130, 50}));
    apply(plugs.unplug({50, 50}));
    EXPECT_EQ(connected().size(), 1U);
    EXPECT_EQ(apply(plugs.plugIn()), "One");
    EXPECT_EQ(apply(plugs.plugIn()), "Two");
    EXPECT_EQ(connected(), options().displays);
}

TEST_F(PlugsTest, PutADisplayAtTheRightWhenTheOthersAreNotTheSame) {
    apply(plugs.unplug({130, 50}));
    session.changeDisplays({makeDisplay(9, "Nine", {0, 0, 200, 100})});
    EXPECT_EQ(apply(plugs.plugIn()), "Two");
    ASSERT_EQ(connected().size(), 2U);
    EXPECT_EQ(connected()[1].bounds, (Rect{200, 0, 60, 100}));
}

TEST_F(PlugsTest, BringNewDisplaysWithNumbersOfTheirOwnUpToNine) {
    for (int number = 4; number <= 9; ++number) {
        EXPECT_EQ(apply(plugs.plugIn()), "Display " + std::to_string(number));
    }
    EXPECT_FALSE(plugs.plugIn());
    std::set<DisplayID> numbers;
    for (const Display& display : connected()) {
        numbers.insert(display.displayID);
    }
    EXPECT_EQ(numbers.size(), 9U);
    EXPECT_EQ(*numbers.rbegin(), 9U);
}

TEST_F(PlugsTest, BringBackEvenTheNinth) {
    for (int number = 4; number <= 9; ++number) {
        apply(plugs.plugIn());
    }
    const auto before = connected();
    apply(plugs.unplug({50, 50}));
    EXPECT_EQ(apply(plugs.plugIn()), "One");
    EXPECT_EQ(connected(), before);
}

} // namespace
} // namespace kestrune::sim
