#include "tests/ui/LayoutFixture.h"

#include <gmock/gmock.h>

#include <vector>

namespace kestrune::ui {

using testing::ElementsAre;
using testing::SizeIs;

namespace {

class AToggle : public LayoutFixture {};

View toggle(bool isOn = false) {
    return Toggle("Launch", isOn, [](bool) {});
}

} // namespace

TEST_F(AToggle, IsALabelAndASwitchBesideIt) {
    EXPECT_EQ(describeView(toggle(), {.width = 400}), "scene 88x22\n"
                                                      "  text 0,3 42x16 \"Launch\" body accessibilityHidden\n"
                                                      "  toggle 50,0 38x22 \"Launch\" off switch 0\n");
}

TEST_F(AToggle, IsOnOrOff) {
    EXPECT_TRUE(toggleOf(toggle(true)).isOn);
    EXPECT_FALSE(toggleOf(toggle(false)).isOn);
}

TEST_F(AToggle, IsAsLargeAsItsControlSizeSays) {
    EXPECT_EQ(toggleOf(toggle().controlSize(ControlSize::mini)).frame.size, (Size{26, 15}));
    EXPECT_EQ(toggleOf(toggle().controlSize(ControlSize::mini)).size, ControlSize::mini);
    EXPECT_EQ(toggleOf(toggle()).size, ControlSize::regular);
}

TEST_F(AToggle, WrapsItsLabelBesideTheSwitch) {
    EXPECT_EQ(describeView(Toggle("The Dock stays", true, [](bool) {}), {.width = 106}),
              "scene 106x32\n"
              "  text 0,0 60x32 \"The Dock stays\" body accessibilityHidden\n"
              "  toggle 68,5 38x22 \"The Dock stays\" on switch 0\n");
}

TEST_F(AToggle, IsReadOutInTheUsersLanguageWithoutMarkdown) {
    translations["Launch"] = "Beim **Anmelden**";
    EXPECT_EQ(toggleOf(toggle()).title, "Beim Anmelden");
}

TEST_F(AToggle, HasAnActionInTheOrderOfTheElements) {
    std::vector<std::pair<int, bool>> flipped;
    const auto record = [&flipped](int number) {
        return [&flipped, number](bool isOn) { flipped.emplace_back(number, isOn); };
    };
    const Rendering rendering =
        render(VStack({}, {Toggle("a", true, record(1)), Button("b", [] {}), Toggle("c", false, record(2))}));
    ASSERT_THAT(rendering.switches, SizeIs(2));
    for (const Element& element : rendering.scene.elements) {
        if (const auto* const placed = std::get_if<ToggleElement>(&element)) {
            rendering.switches.at(placed->action)(!placed->isOn);
        }
    }
    EXPECT_THAT(flipped, ElementsAre(std::pair(1, false), std::pair(2, true)));
}

} // namespace kestrune::ui
