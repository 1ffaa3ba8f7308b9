#include "desk/live/world/PinnedDisplay.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

class PinnedDisplay : public testing::Test {
protected:
    static sim::SessionOptions options() {
        sim::SessionOptions result;
        result.displays = {sim::makeDisplay(1, "One", {0, 0, 100, 100}),
                           sim::makeDisplay(2, "Two", {100, 0, 100, 100}),
                           sim::makeDisplay(3, "Three", {200, 0, 100, 100})};
        return result;
    }

    void store(sim::PropertyList choice) { session.defaults().set("pinnedScreenUUID", std::move(choice)); }

    // 0 for none.
    DisplayID pinned() {
        const sim::Display* display = pinnedDisplay(session);
        return display != nullptr ? display->displayID : 0;
    }

    sim::Session session{options()};
};

TEST_F(PinnedDisplay, IsTheStoredChoice) {
    store(sim::PropertyList{sim::uuidOfDisplay(3)});
    EXPECT_EQ(pinned(), 3U);
}

TEST_F(PinnedDisplay, IsTheMainDisplayWithoutAChoice) {
    session.displays().setMain(1);
    EXPECT_EQ(pinned(), 2U);
}

TEST_F(PinnedDisplay, IsTheMainDisplayWhenTheChoiceIsNotConnected) {
    session.displays().setMain(2);
    store(sim::PropertyList{sim::uuidOfDisplay(7)});
    EXPECT_EQ(pinned(), 3U);
    store(sim::PropertyList{true});
    EXPECT_EQ(pinned(), 3U) << "that is no identifier";
}

TEST_F(PinnedDisplay, IsTheFirstDisplayWhenNoneIsTheMainOne) {
    session.displays().setMain(std::nullopt);
    EXPECT_EQ(pinned(), 1U);
}

TEST_F(PinnedDisplay, IsNotOneWithoutIdentifier) {
    std::vector<sim::Display> displays = options().displays;
    displays[1].uuid.reset();
    session.changeDisplays(displays);
    EXPECT_EQ(pinned(), 1U) << "an absent choice is not the choice of a display without identifier";
}

TEST_F(PinnedDisplay, IsAbsentWithoutDisplays) {
    session.changeDisplays({});
    EXPECT_EQ(pinned(), 0U);
}

} // namespace
} // namespace kestrune::desk
