// Objects of the application's while the platform calls them, which may let go of them themselves.
#include "tests/contract/MenuFixture.h"

namespace kestrune::contract {
namespace {

class ReceiverContract : public MenuFixture {};

TEST_F(ReceiverContract, OfAnActionIsKeptUntilItReturns) {
    const std::weak_ptr<RecordingTarget> watched = target_;
    bool isThere = false;
    target_->onAction([&] {
        target_.reset();
        isThere = !watched.expired();
    });
    choose(itemFor(target_));
    EXPECT_TRUE(isThere);
    EXPECT_TRUE(watched.expired());
}

TEST_F(ReceiverContract, OfAMenusOpeningIsKeptUntilItReturns) {
    auto delegate = std::make_shared<RecordingMenuDelegate>();
    const std::weak_ptr<RecordingMenuDelegate> watched = delegate;
    Menu menu;
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    bool isThere = false;
    delegate->onOpening([&](const Menu& /*opened*/) {
        delegate.reset();
        isThere = !watched.expired();
    });
    EXPECT_TRUE(world_.openStatusMenu([] {}));
    EXPECT_TRUE(isThere);
    EXPECT_TRUE(watched.expired());
}

} // namespace
} // namespace kestrune::contract
