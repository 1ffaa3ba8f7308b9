// The icon in the menu bar, its menu, and the menu's delegate.
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;

constexpr std::string_view ImageName = "ContractImage";

class StatusItemContract : public MenuFixture {
protected:
    static Menu menuWith(std::string_view title) {
        Menu menu = manualMenu();
        menu.addItem(MenuItem(title, std::nullopt, ""));
        return menu;
    }

    std::vector<std::string> openTitles() { return titles(world_.openMenuRows()); }
    std::vector<std::string> titlesWhenOpened() { return titles(world_.statusMenuRows()); }
};

TEST_F(StatusItemContract, IsInTheBarUntilItsLastReferenceGoes) {
    EXPECT_EQ(world_.statusItemCount(), 1U);
    std::optional<StatusItem> other = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    EXPECT_EQ(world_.statusItemCount(), 2U);
    std::optional<StatusItem> sameOther = other;
    other.reset();
    EXPECT_EQ(world_.statusItemCount(), 2U);
    sameOther.reset();
    EXPECT_EQ(world_.statusItemCount(), 1U);
}

TEST_F(StatusItemContract, LeavesTheBarAlthoughItsButtonIsKept) {
    std::optional<StatusItem> other = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    std::optional<StatusBarButton> button = other->button();
    ASSERT_TRUE(button);
    other.reset();
    EXPECT_EQ(world_.statusItemCount(), 1U);
    button->setToolTip("without effect");
    EXPECT_EQ(world_.statusButton().toolTip, "");
}

TEST_F(StatusItemContract, OpensNoMenuUnlessItHasOne) {
    EXPECT_FALSE(world_.openStatusMenu([] { ADD_FAILURE() << "There is no menu."; }));
}

TEST_F(StatusItemContract, RetainsItsMenuAndReplacesTheOneBefore) {
    statusItem_.setMenu(menuWith("first"));
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("first"));
    statusItem_.setMenu(menuWith("second"));
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("second"));
}

TEST_F(StatusItemContract, KeepsTheMenuThatIsOpenWhileAnotherTakesItsPlace) {
    statusItem_.setMenu(menuWith("first"));
    EXPECT_TRUE(world_.openStatusMenu([this] {
        statusItem_.setMenu(menuWith("second"));
        EXPECT_THAT(openTitles(), ElementsAre("first"));
    }));
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("second"));
}

TEST_F(StatusItemContract, TellsTheMenusDelegateOncePerOpening) {
    const auto delegate = std::make_shared<RecordingMenuDelegate>();
    Menu menu = menuWith("row");
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    EXPECT_EQ(delegate->openings(), 0);
    world_.openStatusMenu([&] { EXPECT_EQ(delegate->openings(), 1); });
    EXPECT_EQ(delegate->openings(), 1);
    world_.openStatusMenu([] {});
    EXPECT_EQ(delegate->openings(), 2);
}

TEST_F(StatusItemContract, TellsTheMenusDelegateBeforeTheRowsAreShown) {
    const auto delegate = std::make_shared<RecordingMenuDelegate>();
    Menu menu = manualMenu();
    MenuItem item("row", std::nullopt, "");
    menu.addItem(item);
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    delegate->onOpening([&](const Menu& /*opened*/) { item.setState(ControlState::on); });
    EXPECT_EQ(world_.statusMenuRows().at(0).state, ControlState::on);
}

TEST_F(StatusItemContract, HandsTheDelegateTheMenuThatOpens) {
    const auto delegate = std::make_shared<RecordingMenuDelegate>();
    Menu menu = menuWith("row");
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    delegate->onOpening([](const Menu& opened) {
        Menu sameMenu = opened;
        sameMenu.addItem(MenuItem("added", std::nullopt, ""));
    });
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("row", "added"));
}

TEST_F(StatusItemContract, ShowsAMenuThatItsDelegateAssignsAtTheNextOpening) {
    const auto delegate = std::make_shared<RecordingMenuDelegate>();
    Menu menu = menuWith("first");
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    delegate->onOpening([&](const Menu& /*opened*/) {
        Menu next = menuWith("second");
        next.setDelegate(delegate);
        statusItem_.setMenu(next);
    });
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("first"));
    EXPECT_EQ(delegate->openings(), 1);
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("second"));
    EXPECT_EQ(delegate->openings(), 2);
}

TEST_F(StatusItemContract, OpensAMenuWhoseDelegateIsGone) {
    auto delegate = std::make_shared<RecordingMenuDelegate>();
    delegate->onOpening([](const Menu& /*opened*/) { ADD_FAILURE() << "The delegate is gone."; });
    Menu menu = menuWith("row");
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    delegate.reset();
    EXPECT_THAT(titlesWhenOpened(), ElementsAre("row"));
}

TEST_F(StatusItemContract, OpensTheMenuOfTheItemThatWasClicked) {
    StatusItem other = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    statusItem_.setMenu(menuWith("first"));
    other.setMenu(menuWith("second"));
    world_.openStatusMenu([this] { EXPECT_THAT(openTitles(), ElementsAre("second")); }, 1);
    world_.openStatusMenu([this] { EXPECT_THAT(openTitles(), ElementsAre("first")); }, 0);
}

TEST_F(StatusItemContract, GivesTheSameButtonEachTime) {
    ASSERT_TRUE(statusItem_.button());
    statusItem_.button()->setToolTip("Tool tip \xE2\x80\x94");
    statusItem_.button()->setImageScaling(ImageScaling::none);
    EXPECT_EQ(world_.statusButton().toolTip, "Tool tip \xE2\x80\x94");
    EXPECT_EQ(world_.statusButton().scaling, ImageScaling::none);
    statusItem_.button()->setImageScaling(ImageScaling::proportionallyDown);
    EXPECT_EQ(world_.statusButton().scaling, ImageScaling::proportionallyDown);
    EXPECT_EQ(world_.statusButton().toolTip, "Tool tip \xE2\x80\x94");
}

class ImageContract : public testing::Test {
protected:
    World world_{BundleFiles{{}, {}, {std::string(ImageName), "Other"}}};
    Application application_ = Application::sharedApplication();
    StatusItem statusItem_ = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    StatusBarButton button_ = statusItem_.button().value();
};

TEST_F(ImageContract, IsAbsentWhenTheBundleHasNoneOfThatName) {
    EXPECT_FALSE(Image::imageNamed("Missing"));
    EXPECT_FALSE(Image::imageNamed(""));
    EXPECT_FALSE(Image::imageNamed("contractImage"));
}

TEST_F(ImageContract, IsShownOnTheButton) {
    EXPECT_FALSE(world_.statusButton().image);
    const auto image = Image::imageNamed(ImageName);
    ASSERT_TRUE(image);
    button_.setImage(image);
    ASSERT_TRUE(world_.statusButton().image);
    EXPECT_EQ(world_.statusButton().image->name, ImageName);
    button_.setImage(Image::imageNamed("Other"));
    EXPECT_EQ(world_.statusButton().image->name, "Other");
    button_.setImage(std::nullopt);
    EXPECT_FALSE(world_.statusButton().image);
}

TEST_F(ImageContract, IsNoTemplateUntilItIsSaidSo) {
    auto image = Image::imageNamed(ImageName);
    ASSERT_TRUE(image);
    button_.setImage(image);
    EXPECT_FALSE(world_.statusButton().image->isTemplate);
    image->setTemplate(true);
    EXPECT_TRUE(world_.statusButton().image->isTemplate);
    image->setTemplate(false);
    EXPECT_FALSE(world_.statusButton().image->isTemplate);
}

TEST_F(ImageContract, HasTheSizeThatWasSet) {
    auto image = Image::imageNamed(ImageName);
    ASSERT_TRUE(image);
    button_.setImage(image);
    image->setSize({20, 22.5});
    EXPECT_EQ(world_.statusButton().image->size, (Size{20, 22.5}));
}

TEST_F(ImageContract, IsTheSameObjectForTheSameName) {
    {
        auto image = Image::imageNamed(ImageName);
        ASSERT_TRUE(image);
        image->setTemplate(true);
        image->setSize({20, 20});
    }
    button_.setImage(Image::imageNamed(ImageName));
    EXPECT_TRUE(world_.statusButton().image->isTemplate);
    EXPECT_EQ(world_.statusButton().image->size, (Size{20, 20}));
    button_.setImage(Image::imageNamed("Other"));
    EXPECT_FALSE(world_.statusButton().image->isTemplate);
}

} // namespace
} // namespace kestrune::contract
