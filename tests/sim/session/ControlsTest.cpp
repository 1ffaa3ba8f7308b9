#include "sim/session/Controls.h"

#include "platform/Application.h"
#include "sim/services/HostedView.h"
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kestrune::sim {
namespace {

struct Shown : ui::ObservableObject {};

class ControlsTest : public ::testing::Test {
protected:
    ControlsTest() {
        const auto row = [this] {
            return isEmpty ? ui::VerbatimText("nothing")
                           : ui::HStack({}, ui::VerbatimText("text"), ui::Button(title, [] {}),
                                        ui::Toggle("switch", true, [](bool) {}));
        };
        HostingController controller({row, std::make_shared<Shown>()});
        window.setContentViewController(controller);
    }

    void layOut() { window.state()->content->host().render(); }

    std::optional<Control> named(const std::string& wanted) {
        const auto count = Windows::sceneOf(*window.state()).elements.size();
        for (std::size_t element = 0; element < count; ++element) {
            if (auto control = Control::of(window.state(), element); control && control->title() == wanted) {
                return control;
            }
        }
        return std::nullopt;
    }

    std::string next(const std::optional<Control>& control, bool forwards) {
        const auto found = nextControl(window.state(), control, forwards);
        return found ? found->title() : "none";
    }

    std::string title = "button";
    bool isEmpty = false;
    Session session;
    Window window{Rect(0, 0, 300, 100), WindowStyleMask::titled, BackingStoreType::buffered, false};
};

TEST_F(ControlsTest, AreButtonsAndSwitches) {
    const auto button = named("button");
    const auto toggle = named("switch");
    ASSERT_TRUE(button && toggle);
    EXPECT_EQ(button->toggle(), nullptr);
    ASSERT_NE(toggle->toggle(), nullptr);
    EXPECT_TRUE(toggle->toggle()->isOn);
    EXPECT_FALSE(named("text"));
    EXPECT_FALSE(Control::of(window.state(), 100));
    EXPECT_TRUE(isIn(button, window.state()));
    EXPECT_FALSE(isIn(button, nullptr));
    EXPECT_FALSE(isIn(std::nullopt, window.state()));
}

TEST_F(ControlsTest, AreGoneOnceTheyHaveAnotherTitle) {
    const auto button = named("button");
    const auto toggle = named("switch");
    title = "other";
    layOut();
    EXPECT_EQ(button->window(), nullptr);
    EXPECT_FALSE(isIn(button, window.state()));
    EXPECT_EQ(toggle->window(), window.state());
    isEmpty = true;
    layOut();
    EXPECT_EQ(toggle->window(), nullptr);
    EXPECT_EQ(toggle->toggle(), nullptr);
}

TEST_F(ControlsTest, FollowEachOtherAroundAndAround) {
    EXPECT_EQ(next(std::nullopt, true), "button");
    EXPECT_EQ(next(std::nullopt, false), "switch");
    EXPECT_EQ(next(named("button"), true), "switch");
    EXPECT_EQ(next(named("switch"), true), "button");
    EXPECT_EQ(next(named("switch"), false), "button");
    EXPECT_EQ(next(named("button"), false), "switch");
    isEmpty = true;
    layOut();
    EXPECT_EQ(next(std::nullopt, true), "none");
}

} // namespace
} // namespace kestrune::sim
