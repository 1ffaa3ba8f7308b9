// The updater, with its framework and without, and what that asks and tells the application.
#include "platform/Updater.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordingUserDriverDelegate : public StandardUserDriverDelegate {
public:
    explicit RecordingUserDriverDelegate(bool isGentle) : isGentle_(isGentle) { init(); }

    std::string_view className() const override { return "RecordingUserDriverDelegate"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }
    bool supportsGentleScheduledUpdateReminders() const noexcept override { return isGentle_; }
    void standardUserDriverWillHandleShowingUpdate() noexcept override { receive("will show update"); }
    void standardUserDriverWillFinishUpdateSession() noexcept override { receive("will finish session"); }
    void standardUserDriverWillShowModalAlert() noexcept override { receive("will show alert"); }
    void standardUserDriverDidShowModalAlert() noexcept override { receive("did show alert"); }

    // Called each time after it was written down.
    void onCall(std::function<void()> reaction) { reaction_ = std::move(reaction); }

    // What was told, in order.
    std::vector<std::string>& received() { return received_; }

private:
    void receive(std::string what) {
        received_.push_back(std::move(what));
        if (reaction_) {
            reaction_();
        }
    }

    bool isGentle_;
    std::vector<std::string> received_;
    std::function<void()> reaction_;
};

class UpdaterContract : public testing::Test {
protected:
    Updater makeUpdater() const {
        const Bundle bundle = Bundle::mainBundle();
        const StandardUserDriver userDriver(bundle, delegate_);
        return {bundle, bundle, userDriver, delegate_};
    }

    void startUpdater() {
        world_.setUpdateFramework(UpdateFramework::working);
        updater_ = makeUpdater();
        ASSERT_FALSE(updater_->startUpdater());
    }

    World world_;
    std::shared_ptr<RecordingUserDriverDelegate> delegate_ =
        std::make_shared<RecordingUserDriverDelegate>(false);
    std::optional<Updater> updater_;
};

TEST_F(UpdaterContract, AsksTheFrameworkWithTheMainBundleAndItsDelegates) {
    const Updater updater = makeUpdater();
    EXPECT_THAT(
        world_.updateMessages(),
        ElementsAre("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, "
                    "RecordingUserDriverDelegate",
                    "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, "
                    "main bundle, RecordingUserDriverDelegate"));
}

TEST_F(UpdaterContract, HandsOnWhatItIsAskedFor) {
    Updater updater = makeUpdater();
    const std::size_t before = world_.updateMessages().size();
    EXPECT_FALSE(updater.startUpdater());
    updater.setAutomaticallyDownloadsUpdates(false);
    updater.setAutomaticallyDownloadsUpdates(true);
    updater.checkForUpdates();
    auto messages = world_.updateMessages();
    messages.erase(messages.begin(), messages.begin() + static_cast<std::ptrdiff_t>(before));
    EXPECT_THAT(messages, ElementsAre("-[SPUUpdater startUpdater:]",
                                      "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false",
                                      "-[SPUUpdater setAutomaticallyDownloadsUpdates:] true",
                                      "-[SPUUpdater checkForUpdates]"));
}

TEST_F(UpdaterContract, SaysWhyItDoesNotStart) {
    world_.setUpdateFramework(UpdateFramework::refusing);
    const std::optional<Error> error = makeUpdater().startUpdater();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, World::UpdateFailure);
}

TEST_F(UpdaterContract, DoesNotStartWithoutTheFrameworkAndSaysSo) {
    world_.setUpdateFramework(UpdateFramework::missing);
    const std::optional<Error> error = makeUpdater().startUpdater();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription,
              "Sparkle.framework is not in the application's Frameworks folder.");
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(UpdaterContract, DoesNothingWithoutTheFramework) {
    world_.setUpdateFramework(UpdateFramework::missing);
    Updater updater = makeUpdater();
    updater.setAutomaticallyDownloadsUpdates(false);
    updater.checkForUpdates();
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
    EXPECT_EQ(world_.asksForGentleReminders(), std::nullopt);
}

TEST_F(UpdaterContract, AsksItsDelegateForReminders) {
    startUpdater();
    EXPECT_EQ(world_.asksForGentleReminders(), false);
}

TEST_F(UpdaterContract, HearsThatItsDelegateReminds) {
    delegate_ = std::make_shared<RecordingUserDriverDelegate>(true);
    startUpdater();
    EXPECT_EQ(world_.asksForGentleReminders(), true);
}

TEST_F(UpdaterContract, TellsItsDelegateOfASession) {
    startUpdater();
    EXPECT_THAT(delegate_->received(), IsEmpty());
    world_.announceUpdate();
    EXPECT_THAT(delegate_->received(), ElementsAre("will show update"));
    world_.announceUpdate();
    world_.finishUpdateSession();
    EXPECT_THAT(delegate_->received(),
                ElementsAre("will show update", "will show update", "will finish session"));
}

TEST_F(UpdaterContract, TellsItsDelegateBeforeAnAlertAndAfterIt) {
    startUpdater();
    world_.showUpdateAlert([this] { delegate_->received().emplace_back("alert"); });
    EXPECT_THAT(delegate_->received(), ElementsAre("will show alert", "alert", "did show alert"));
}

TEST_F(UpdaterContract, TellsItsDelegateOnTheMainThreadUntilThatReturns) {
    startUpdater();
    const std::weak_ptr<RecordingUserDriverDelegate> watched = delegate_;
    bool isThere = false;
    delegate_->onCall([&] {
        delegate_.reset();
        isThere = !watched.expired();
    });
    world_.announceUpdate();
    EXPECT_TRUE(isThere);
    EXPECT_TRUE(watched.expired());
}

TEST_F(UpdaterContract, HoldsItsDelegateWeakly) {
    startUpdater();
    const std::weak_ptr<RecordingUserDriverDelegate> watched = delegate_;
    delegate_.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(world_.asksForGentleReminders(), std::nullopt);
    world_.announceUpdate();
    world_.finishUpdateSession();
}

TEST_F(UpdaterContract, KeepsItsUserDriver) {
    startUpdater();
    world_.announceUpdate();
    EXPECT_THAT(delegate_->received(), ElementsAre("will show update"));
}

} // namespace
} // namespace kestrune::contract
