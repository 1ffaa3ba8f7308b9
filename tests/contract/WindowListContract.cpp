// Which windows there are, of which classes, and which of them a notification is about.
#include "platform/NotificationCenter.h"
#include "tests/contract/WindowFixture.h"

namespace kestrune::contract {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class WindowListContract : public WindowFixture {
protected:
    std::vector<std::string> titles() const {
        std::vector<std::string> titles;
        for (const Window& window : application_->windows()) {
            titles.push_back(window.title());
        }
        return titles;
    }

    std::optional<Window> windowTitled(std::string_view title) const {
        for (const Window& window : application_->windows()) {
            if (window.title() == title) {
                return window;
            }
        }
        return std::nullopt;
    }
};

TEST_F(WindowListContract, HasWindowsOnScreenAndOff) {
    const Window hidden = makeWindow("hidden");
    Window shown = makeWindow("shown");
    show(shown);
    Window closed = makeWindow("closed");
    show(closed);
    world_.clickCloseButton();
    EXPECT_THAT(titles(), Contains("hidden"));
    EXPECT_THAT(titles(), Contains("shown"));
    EXPECT_THAT(titles(), Contains("closed"));
}

TEST_F(WindowListContract, HasTheWindowsInTheDock) {
    Window window = makeWindow("miniaturized", WindowStyleMask::titled | WindowStyleMask::miniaturizable);
    show(window);
    world_.clickMinimizeButton();
    EXPECT_THAT(titles(), Contains("miniaturized"));
}

TEST_F(WindowListContract, HasNoWindowThatIsGone) {
    std::optional<Window> window = makeWindow("gone");
    EXPECT_THAT(titles(), Contains("gone"));
    window.reset();
    world_.runMainQueue();
    EXPECT_THAT(titles(), Not(Contains("gone")));
}

TEST_F(WindowListContract, HasTheWindowsThemselves) {
    Window window = makeWindow("before");
    show(window);
    std::optional<Window> listed = windowTitled("before");
    ASSERT_TRUE(listed);
    listed->setTitle("after");
    listed->setLevel(WindowLevel::floating);
    EXPECT_EQ(window.title(), "after");
    EXPECT_THAT(shownTitles(), ElementsAre("after"));
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::floating);
}

TEST_F(WindowListContract, HasTheWindowsOfFrameworks) {
    const auto frameworks = world_.showFrameworkWindow("SPUContractWindow", "Software Update");
    const std::optional<Window> listed = windowTitled("Software Update");
    ASSERT_TRUE(listed);
    EXPECT_EQ(listed->className(), "SPUContractWindow");
    EXPECT_THAT(shownTitles(), ElementsAre("Software Update"));
}

class WindowNameContract : public WindowFixture {};

TEST_F(WindowNameContract, IsThatOfItsClass) { EXPECT_EQ(makeWindow("one").className(), "NSWindow"); }

TEST_F(WindowNameContract, IsATitleInAnyScript) {
    Window window = makeWindow("Bienvenue à Kestrune — ようこそ");
    EXPECT_EQ(window.title(), "Bienvenue à Kestrune — ようこそ");
    window.setTitle("");
    EXPECT_EQ(window.title(), "");
}

class KeyWindowNotificationContract : public WindowFixture {
protected:
    NotificationObserver observe() {
        return NotificationCenter::defaultCenter().addObserver(
            WindowDidBecomeKeyNotification, OperationQueue::mainQueue(),
            [this](const Notification& notification) {
                const std::optional<Window> window = notification.objectAsWindow();
                becameKey_.push_back(window ? window->title() : "no window");
            });
    }

    // Of the windows that this test is about.
    std::vector<std::string> becameKey_;
};

TEST_F(KeyWindowNotificationContract, IsAboutTheWindow) {
    const NotificationObserver observer = observe();
    Window one = makeWindow("one");
    Window two = makeWindow("two");
    show(one);
    EXPECT_THAT(becameKey_, ElementsAre("one"));
    show(two);
    EXPECT_THAT(becameKey_, ElementsAre("one", "two"));
    world_.clickTitleBar(1);
    EXPECT_THAT(becameKey_, ElementsAre("one", "two", "one"));
}

TEST_F(KeyWindowNotificationContract, IsAboutAWindowOfAFrameworkToo) {
    const NotificationObserver observer = observe();
    world_.activateApplication();
    world_.runMainQueue();
    const auto frameworks = world_.showFrameworkWindow("SPUContractWindow", "Software Update");
    EXPECT_THAT(becameKey_, ElementsAre("Software Update"));
}

TEST_F(KeyWindowNotificationContract, GivesTheWindowItself) {
    const NotificationObserver observer = NotificationCenter::defaultCenter().addObserver(
        WindowDidBecomeKeyNotification, OperationQueue::mainQueue(), [](const Notification& notification) {
            notification.objectAsWindow()->setLevel(WindowLevel::floating);
        });
    Window window = makeWindow("one");
    show(window);
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::floating);
}

TEST_F(KeyWindowNotificationContract, IsNotToldToAnObserverThatWasRemoved) {
    const NotificationObserver observer = observe();
    NotificationCenter::defaultCenter().removeObserver(observer);
    Window window = makeWindow("one");
    show(window);
    EXPECT_THAT(becameKey_, IsEmpty());
}

} // namespace
} // namespace kestrune::contract
