// The life of the application, and what it opens.
#include "platform/Application.h"
#include "platform/MainActor.h"
#include "platform/Workspace.h"
#include "tests/contract/RecordingObjects.h"
#include "tests/contract/WindowFixture.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ApplicationContract : public testing::Test {
protected:
    World world_;
    std::shared_ptr<RecordingApplicationDelegate> delegate_ =
        std::make_shared<RecordingApplicationDelegate>();
};

TEST_F(ApplicationContract, IsAbsentBeforeItIsMade) {
    EXPECT_FALSE(Application::nsApp());
    Application::sharedApplication();
    EXPECT_TRUE(Application::nsApp());
}

TEST_F(ApplicationContract, IsOneForTheProcess) {
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::accessory);
    Application::sharedApplication().setDelegate(delegate_);
    Application::nsApp()->setActivationPolicy(ActivationPolicy::regular);
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    world_.launchApplication();
    EXPECT_THAT(delegate_->received(), ElementsAre("applicationDidFinishLaunching:"));
}

TEST_F(ApplicationContract, TakesTheActivationPolicyThatIsSet) {
    Application application = Application::sharedApplication();
    EXPECT_TRUE(application.setActivationPolicy(ActivationPolicy::accessory));
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_TRUE(application.setActivationPolicy(ActivationPolicy::regular));
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
}

TEST_F(ApplicationContract, TellsItsActivationPolicy) {
    Application application = Application::sharedApplication();
    EXPECT_EQ(application.activationPolicy(), world_.activationPolicy());
    application.setActivationPolicy(ActivationPolicy::accessory);
    EXPECT_EQ(application.activationPolicy(), ActivationPolicy::accessory);
    application.setActivationPolicy(ActivationPolicy::regular);
    EXPECT_EQ(application.activationPolicy(), ActivationPolicy::regular);
}

TEST_F(ApplicationContract, KeepsItsActivationPolicyThroughTheLaunch) {
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::accessory);
    world_.launchApplication();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(ApplicationContract, TellsItsDelegateOfTheLaunchWhenItRuns) {
    Application::sharedApplication().setDelegate(delegate_);
    EXPECT_THAT(delegate_->received(), IsEmpty());
    world_.launchApplication();
    EXPECT_THAT(delegate_->received(), ElementsAre("applicationDidFinishLaunching:"));
    world_.letTimePass(0.1);
    EXPECT_EQ(delegate_->received().size(), 1U);
}

TEST_F(ApplicationContract, ExistsWhenItsDelegateHearsOfTheLaunch) {
    bool exists = false;
    delegate_->onLaunch([&] { exists = Application::nsApp().has_value(); });
    Application::sharedApplication().setDelegate(delegate_);
    world_.launchApplication();
    EXPECT_TRUE(exists);
}

TEST_F(ApplicationContract, RunsTasksOfTheLaunchAfterIt) {
    std::vector<std::string> order;
    delegate_->onLaunch([&] {
        MainActor::startTask([&] { order.emplace_back("task"); });
        order.emplace_back("launch");
    });
    Application::sharedApplication().setDelegate(delegate_);
    world_.launchApplication();
    world_.runMainQueue();
    EXPECT_THAT(order, ElementsAre("launch", "task"));
}

TEST_F(ApplicationContract, HoldsItsDelegateWeakly) {
    Application::sharedApplication().setDelegate(delegate_);
    delegate_->onLaunch([] { ADD_FAILURE() << "The delegate is gone."; });
    const std::weak_ptr<RecordingApplicationDelegate> watched = delegate_;
    delegate_.reset();
    EXPECT_TRUE(watched.expired());
    world_.launchApplication();
}

TEST_F(ApplicationContract, TellsTheDelegateThatWasSetLast) {
    const auto other = std::make_shared<RecordingApplicationDelegate>();
    Application::sharedApplication().setDelegate(delegate_);
    Application::sharedApplication().setDelegate(other);
    world_.launchApplication();
    EXPECT_THAT(delegate_->received(), IsEmpty());
    EXPECT_EQ(other->received().size(), 1U);
}

TEST_F(ApplicationContract, TellsItsDelegateOnceThatItTerminates) {
    Application::sharedApplication().setDelegate(delegate_);
    world_.launchApplication();
    world_.catchTermination([] { Application::nsApp()->terminate(); });
    EXPECT_THAT(delegate_->received(),
                ElementsAre("applicationDidFinishLaunching:", "applicationWillTerminate:"));
}

TEST_F(ApplicationContract, TellsNoDelegateThatIsGoneThatItTerminates) {
    Application::sharedApplication().setDelegate(delegate_);
    world_.launchApplication();
    const std::weak_ptr<RecordingApplicationDelegate> watched = delegate_;
    delegate_.reset();
    EXPECT_TRUE(watched.expired());
    world_.catchTermination([] { Application::nsApp()->terminate(); });
}

TEST_F(ApplicationContract, TerminatesByAMenuItemWithoutTarget) {
    Application application = Application::sharedApplication();
    application.setDelegate(delegate_);
    application.setActivationPolicy(ActivationPolicy::regular);
    Menu submenu;
    submenu.addItem(MenuItem("Quit", Selector("terminate:"), "q"));
    MenuItem item;
    item.setSubmenu(submenu);
    Menu mainMenu;
    mainMenu.addItem(item);
    application.setMainMenu(mainMenu);
    world_.launchApplication();
    world_.activateApplication();
    world_.catchTermination([this] { world_.pressKey("q", EventModifierFlags::command); });
    EXPECT_THAT(delegate_->received(),
                ElementsAre("applicationDidFinishLaunching:", "applicationWillTerminate:"));
}

class ReopeningContract : public WindowFixture {
protected:
    ReopeningContract() { application_->setDelegate(delegate_); }

    std::shared_ptr<RecordingApplicationDelegate> delegate_ =
        std::make_shared<RecordingApplicationDelegate>();
};

TEST_F(ReopeningContract, AsksTheDelegateAndTellsItWhetherAWindowIsThere) {
    EXPECT_FALSE(world_.reopenApplication());
    Window window = makeWindow("window", WindowStyleMask::titled | WindowStyleMask::miniaturizable);
    show(window);
    EXPECT_TRUE(world_.reopenApplication());
    world_.clickMinimizeButton();
    EXPECT_THAT(shownTitles(), IsEmpty());
    EXPECT_TRUE(world_.reopenApplication());
    EXPECT_THAT(delegate_->received(), ElementsAre("applicationShouldHandleReopen:hasVisibleWindows: NO",
                                                   "applicationShouldHandleReopen:hasVisibleWindows: YES",
                                                   "applicationShouldHandleReopen:hasVisibleWindows: YES"));
}

TEST_F(ReopeningContract, MakesTheApplicationActive) {
    world_.activateAnotherApplication();
    world_.reopenApplication();
    EXPECT_TRUE(world_.isActive());
}

TEST_F(ReopeningContract, IsLeftToTheSystemWithoutADelegate) {
    delegate_.reset();
    EXPECT_TRUE(world_.reopenApplication());
}

TEST(URLContract, IsThereForAnAddressInSystemSettings) {
    const World world;
    EXPECT_TRUE(
        URL::withString("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
}

TEST(WorkspaceContract, OpensURLsInOrder) {
    const World world;
    const auto first = URL::withString("kestrune-contract:first?a=b");
    const auto second = URL::withString(std::string_view("kestrune-contract:second#not this").substr(0, 24));
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_THAT(world.openedURLs(), IsEmpty());
    EXPECT_TRUE(Workspace::sharedWorkspace().openURL(*first));
    EXPECT_TRUE(Workspace::sharedWorkspace().openURL(*second));
    EXPECT_TRUE(Workspace::sharedWorkspace().openURL(*first));
    EXPECT_THAT(world.openedURLs(), ElementsAre("kestrune-contract:first?a=b", "kestrune-contract:second",
                                                "kestrune-contract:first?a=b"));
}

TEST(WorkspaceContract, SaysThatNobodyOpensAURL) {
    World world;
    const auto url = URL::withString("kestrune-contract:first");
    ASSERT_TRUE(url);
    world.letNobodyOpenURLs();
    EXPECT_FALSE(Workspace::sharedWorkspace().openURL(*url));
    EXPECT_THAT(world.openedURLs(), IsEmpty());
}

} // namespace
} // namespace kestrune::contract
