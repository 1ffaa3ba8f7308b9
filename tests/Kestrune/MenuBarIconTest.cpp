#include "sim/services/StatusItemState.h"
#include "tests/Kestrune/MenuFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

const std::string ToolTip = "Kestrune — Pin the Dock to one screen";

class MenuBarIcon : public MenuFixture {
protected:
    explicit MenuBarIcon(sim::SessionOptions options = {}) : MenuFixture(std::move(options)) {}

    std::shared_ptr<StatusItem::State> item() { return session.statusItems().shown().at(0); }
};

TEST_F(MenuBarIcon, IsObtainedAndConfiguredInOrder) {
    const Calls making = callsOf([this] { make(); });
    const Calls rebuilding = callsOf([this] { controller->rebuildMenu(); });
    EXPECT_THAT(making, ElementsAreArray(inOrder(
                            {{"NSStatusBar.systemStatusBar", "-[NSStatusBar statusItemWithLength:] -1",
                              "-[MenuBarController init]", "-[NSStatusItem button]",
                              "+[NSImage imageNamed:] MenuBarIcon", "-[NSImage setTemplate:] true",
                              "-[NSImage setSize:] 20 x 20", "-[NSStatusBarButton setImage:] MenuBarIcon",
                              "-[NSStatusBarButton setImageScaling:] 0"},
                             localizing(ToolTip),
                             {"-[NSStatusBarButton setToolTip:] " + ToolTip},
                             rebuilding})));
}

TEST_F(MenuBarIcon, HasItsImageItsToolTipAndAMenuFromTheStart) {
    make();
    ASSERT_THAT(session.statusItems().shown(), SizeIs(1));
    EXPECT_EQ(item()->length, VariableStatusItemLength);
    ASSERT_TRUE(item()->button);
    ASSERT_TRUE(item()->button->image);
    const Image::State& image = *item()->button->image->state();
    EXPECT_EQ(image.name, "MenuBarIcon");
    EXPECT_TRUE(image.isTemplate);
    EXPECT_EQ(image.size, (Size{20, 20}));
    EXPECT_EQ(item()->button->scaling, ImageScaling::proportionallyDown);
    EXPECT_EQ(item()->button->toolTip, ToolTip);
    EXPECT_TRUE(item()->menu);
}

TEST_F(MenuBarIcon, LeavesTheBarWithTheController) {
    make();
    controller.reset();
    EXPECT_THAT(session.statusItems().shown(), IsEmpty());
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST_F(MenuBarIcon, StaysEmptyWithoutAButton) {
    session.faults().withholdStatusButtons(true);
    EXPECT_THAT(callsOf([this] { make(); }), Not(hasCallAbout("+[NSImage")));
    EXPECT_FALSE(item()->button);
    EXPECT_TRUE(item()->menu);
}

sim::SessionOptions withoutImages() {
    sim::SessionOptions options;
    options.bundle.images.clear();
    return options;
}

class MenuBarIconWithoutImage : public MenuBarIcon {
protected:
    MenuBarIconWithoutImage() : MenuBarIcon(withoutImages()) {}
};

TEST_F(MenuBarIconWithoutImage, IsConfiguredAllTheSame) {
    EXPECT_THAT(callsOf([this] { make(); }), Contains("-[NSStatusBarButton setImageScaling:] 0"));
    EXPECT_FALSE(item()->button->image);
    EXPECT_EQ(item()->button->toolTip, ToolTip);
}

} // namespace
} // namespace kestrune
