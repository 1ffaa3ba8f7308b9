#include "platform/StatusBar.h"
#include "sim/services/StatusItemState.h"
#include "sim/session/Session.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

class StatusItemsTest : public testing::Test {
protected:
    static StatusItem add(double length) { return StatusBar::systemStatusBar().statusItem(length); }

    Session session_;
    StatusItems& items_ = session_.statusItems();
};

TEST_F(StatusItemsTest, ShowThoseThatExistFromTheFirstToTheLatest) {
    EXPECT_TRUE(items_.shown().empty());
    const StatusItem first = add(10);
    std::optional<StatusItem> second = add(20);
    const StatusItem third = add(VariableStatusItemLength);
    ASSERT_EQ(items_.shown().size(), 3U);
    second.reset();
    ASSERT_EQ(items_.shown().size(), 2U);
    EXPECT_EQ(items_.shown()[0]->length, 10);
    EXPECT_EQ(items_.shown()[1]->length, -1);
}

TEST_F(StatusItemsTest, HaveAButtonUnlessTheSystemWithholdsIt) {
    const StatusItem with = add(10);
    session_.faults().withholdStatusButtons(true);
    const StatusItem without = add(10);
    EXPECT_TRUE(with.button());
    EXPECT_FALSE(without.button());
    session_.faults().withholdStatusButtons(false);
    EXPECT_TRUE(add(10).button());
    EXPECT_FALSE(without.button());
}

TEST_F(StatusItemsTest, AreGoneOnceTheyAreCleared) {
    StatusItem item = add(10);
    items_.clear();
    EXPECT_TRUE(items_.shown().empty());
    item.setMenu(Menu());
    EXPECT_FALSE(session_.user().openMenu(StatusItemIndex{0}));
}

TEST_F(StatusItemsTest, ForgetTheImagesOfTheProcessThatEnded) {
    Image::imageNamed("MenuBarIcon")->setTemplate(true);
    EXPECT_TRUE(Image::imageNamed("MenuBarIcon")->state()->isTemplate);
    items_.clear();
    EXPECT_FALSE(Image::imageNamed("MenuBarIcon")->state()->isTemplate);
}

TEST(StatusItemImage, KnowsTheFileThatTheBundleNames) {
    SessionOptions options;
    options.bundle.images = {{"Icon", "/resources/Icon@2x.png"}};
    const Session session(std::move(options));
    const auto image = Image::imageNamed("Icon");
    ASSERT_TRUE(image);
    EXPECT_EQ(image->state()->name, "Icon");
    EXPECT_EQ(image->state()->file, "/resources/Icon@2x.png");
    EXPECT_EQ(image->state()->size, std::nullopt);
    EXPECT_FALSE(Image::imageNamed("MenuBarIcon"));
}

} // namespace
} // namespace kestrune::sim
