#include "sim/services/Updates.h"

#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/NotificationCenter.h"
#include "platform/Updater.h"
#include "sim/services/WindowState.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "sim/session/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Notes what the framework tells it.
class RecordingDelegate : public StandardUserDriverDelegate {
public:
    RecordingDelegate() { init(); }

    bool supportsGentleScheduledUpdateReminders() const noexcept override { return false; }
    void standardUserDriverWillHandleShowingUpdate() noexcept override { told.emplace_back("update"); }
    void standardUserDriverWillFinishUpdateSession() noexcept override { told.emplace_back("finish"); }
    void standardUserDriverWillShowModalAlert() noexcept override { told.emplace_back("will alert"); }
    void standardUserDriverDidShowModalAlert() noexcept override { told.emplace_back("did alert"); }

    std::string_view className() const override { return "RecordingDelegate"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }

    std::vector<std::string> told;
};

SessionOptions optionsWith(UpdateFramework framework, bool hasFeed) {
    SessionOptions options;
    options.updateFramework = framework;
    if (hasFeed) {
        options.bundle.infoDictionary["SUFeedURL"] = {std::string("https://kestrune.org/appcast.xml")};
    }
    return options;
}

class UpdatesTest : public testing::Test {
protected:
    explicit UpdatesTest(UpdateFramework framework = UpdateFramework::working, bool hasFeed = true)
        : session_(optionsWith(framework, hasFeed)) {
        Application::sharedApplication();
        session_.application().isActive = true;
    }

    void start() { EXPECT_FALSE(updates().start(delegate_)); }
    Updates& updates() { return session_.updates(); }

    std::vector<std::string> titles() {
        std::vector<std::string> result;
        for (const auto& window : session_.windows().shown()) {
            result.push_back(window->title);
        }
        return result;
    }

    // What the frontmost window says first of all.
    std::string headline() {
        for (const ui::Element& element : Windows::sceneOf(*session_.windows().shown()[0]).elements) {
            if (const auto* const text = std::get_if<ui::TextElement>(&element)) {
                return text->text.string();
            }
        }
        return {};
    }

    Session session_;
    std::shared_ptr<RecordingDelegate> delegate_ = std::make_shared<RecordingDelegate>();
};

class UpdatesTestWithoutFramework : public UpdatesTest {
protected:
    UpdatesTestWithoutFramework() : UpdatesTest(UpdateFramework::missing) {}
};

class UpdatesTestOfABrokenFramework : public UpdatesTest {
protected:
    UpdatesTestOfABrokenFramework() : UpdatesTest(UpdateFramework::broken) {}
};

class UpdatesTestWithoutFeed : public UpdatesTest {
protected:
    UpdatesTestWithoutFeed() : UpdatesTest(UpdateFramework::working, false) {}
};

TEST_F(UpdatesTest, DoNothingBeforeTheyAreStarted) {
    updates().checkForUser();
    session_.checkForUpdatesAsScheduled();
    session_.user().dismissUpdater();
    session_.advance(1s);
    EXPECT_THAT(delegate_->told, IsEmpty());
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_F(UpdatesTest, AreJournaledWithWhoIsToldOfThem) {
    const Bundle bundle = Bundle::mainBundle();
    session_.journal().take();
    const Updater updater(bundle, bundle, StandardUserDriver(bundle, delegate_), {});
    EXPECT_THAT(session_.journal().take(),
                ElementsAre("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, "
                            "RecordingDelegate",
                            "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] "
                            "main bundle, main bundle, nil"));
}

TEST_F(UpdatesTestWithoutFramework, DoNotStart) {
    EXPECT_EQ(updates().start(delegate_)->localizedDescription, MissingUpdateFramework);
}

TEST_F(UpdatesTestOfABrokenFramework, DoNotStart) {
    EXPECT_EQ(updates().start(delegate_)->localizedDescription, Updates::StartFailure);
}

TEST_F(UpdatesTest, ShowAtOnceThatTheyCheckForTheUser) {
    start();
    updates().checkForUser();
    EXPECT_THAT(titles(), ElementsAre("Updating Kestrune"));
    EXPECT_THAT(delegate_->told, IsEmpty());
    updates().checkForUser();
    EXPECT_THAT(titles(), SizeIs(1));
    session_.user().dismissUpdater();
    EXPECT_THAT(titles(), IsEmpty());
    EXPECT_THAT(delegate_->told, ElementsAre("finish"));
    session_.advance(1s);
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_F(UpdatesTest, SayToTheUserThatThereIsNothingNew) {
    start();
    updates().checkForUser();
    session_.advance(Updates::CheckDuration);
    EXPECT_TRUE(updates().isShowingAlert());
    EXPECT_THAT(titles(), ElementsAre(""));
    EXPECT_EQ(session_.windows().shown()[0]->className, "_NSAlertPanel");
    EXPECT_EQ(updates().alert(), session_.windows().shown()[0]);
    EXPECT_EQ(updates().alert()->frame.width(), 260);
    EXPECT_THAT(delegate_->told, ElementsAre("will alert"));
    updates().checkForUser();
    EXPECT_THAT(titles(), SizeIs(1));
    session_.user().dismissUpdater();
    EXPECT_THAT(delegate_->told, ElementsAre("will alert", "did alert", "finish"));
    EXPECT_THAT(titles(), IsEmpty());
    session_.user().dismissUpdater();
    EXPECT_THAT(delegate_->told, SizeIs(3));
}

TEST_F(UpdatesTest, SayNothingOfAScheduledCheckThatFindsNothing) {
    for (const UpdateFeed feed : {UpdateFeed::nothingNew, UpdateFeed::unreachable}) {
        session_.updateSupply().feed = feed;
        start();
        session_.checkForUpdatesAsScheduled();
        EXPECT_THAT(titles(), IsEmpty());
        session_.advance(1s);
        EXPECT_THAT(titles(), IsEmpty());
        EXPECT_THAT(delegate_->told, IsEmpty());
    }
}

TEST_F(UpdatesTestWithoutFeed, AreUnreachable) {
    session_.updateSupply().feed = UpdateFeed::newVersion;
    start();
    updates().checkForUser();
    session_.advance(1s);
    EXPECT_TRUE(updates().isShowingAlert());
    EXPECT_EQ(headline(), "Update Error!");
}

TEST_F(UpdatesTest, TellTheUserWhatTheCheckHasFound) {
    const std::pair<UpdateFeed, std::string> found[] = {
        {UpdateFeed::nothingNew, "You’re up to date!"},
        {UpdateFeed::unreachable, "Update Error!"},
        {UpdateFeed::newVersion, "A new version of Kestrune is available!"}};
    start();
    for (const auto& [feed, message] : found) {
        session_.updateSupply().feed = feed;
        updates().checkForUser();
        session_.advance(1s);
        EXPECT_EQ(headline(), message);
        session_.user().dismissUpdater();
    }
}

TEST_F(UpdatesTest, AnnounceAndShowANewVersion) {
    session_.updateSupply().feed = UpdateFeed::newVersion;
    start();
    updates().checkForUser();
    session_.advance(1s);
    EXPECT_TRUE(updates().isShowingUpdate());
    EXPECT_THAT(titles(), ElementsAre("Software Update"));
    EXPECT_EQ(session_.windows().shown()[0]->className, "NSWindow");
    EXPECT_EQ(session_.windows().keyWindow(), session_.windows().shown()[0]);
    EXPECT_EQ(updates().alert(), nullptr);
    EXPECT_THAT(delegate_->told, ElementsAre("update"));
    EXPECT_TRUE(session_.user().press(ui::KeyboardShortcut::defaultAction)) << "Install Update";
    EXPECT_THAT(delegate_->told, ElementsAre("update", "finish"));
    EXPECT_THAT(titles(), IsEmpty());
}

// Of the icon, the texts, what the default button of an alert is painted with, and the buttons.
std::vector<Rect> framesIn(Session& session) {
    std::vector<Rect> result;
    for (const ui::Element& element : Windows::sceneOf(*session.windows().shown()[0]).elements) {
        result.push_back(std::visit([](const auto& any) { return any.frame; }, element));
    }
    return result;
}

TEST(WindowsOfUpdates, AreLaidOutAsSparkleDoes) {
    const FixedAdvanceMeasurer narrow{0.8};
    SessionOptions options = optionsWith(UpdateFramework::working, true);
    options.measurer = &narrow;
    Session session(std::move(options));
    Application::sharedApplication();
    const auto delegate = std::make_shared<RecordingDelegate>();
    EXPECT_FALSE(session.updates().start(delegate));
    session.updateSupply().feed = UpdateFeed::newVersion;
    session.updates().checkForUser();
    session.advance(1s);
    const std::vector<Rect> update = framesIn(session);
    ASSERT_EQ(update.size(), 6U);
    const Rect& icon = update[0];
    const Rect& heading = update[1];
    const Rect& text = update[2];
    const Rect& skip = update[3];
    const Rect& later = update[4];
    const Rect& install = update[5];
    EXPECT_EQ(icon.minY(), 20);
    EXPECT_EQ(heading.minY(), 20);
    EXPECT_EQ(heading.minX() - icon.maxX(), 16);
    EXPECT_EQ(text.minX(), heading.minX());
    EXPECT_EQ(text.minY() - heading.maxY(), 10);
    EXPECT_EQ(skip.minX(), heading.minX());
    EXPECT_EQ(skip.minY() - text.maxY(), 16);
    EXPECT_EQ(later.minX() - skip.maxX(), 32);
    EXPECT_EQ(install.minX() - later.maxX(), 12);

    session.user().dismissUpdater();
    session.updateSupply().feed = UpdateFeed::nothingNew;
    session.updates().checkForUser();
    session.advance(1s);
    EXPECT_THAT(framesIn(session), ElementsAre(Rect(92, 0, 77, 77), Rect(72, 87, 116, 13),
                                               Rect(32, 110, 197, 12), Rect(16, 138, 228, 28)));
}

TEST_F(UpdatesTest, AnnounceAgainWhatTheUserAsksForWhileItIsShown) {
    session_.updateSupply().feed = UpdateFeed::newVersion;
    start();
    session_.checkForUpdatesAsScheduled();
    session_.advance(1s);
    session_.checkForUpdatesAsScheduled();
    EXPECT_THAT(delegate_->told, ElementsAre("update"));
    updates().checkForUser();
    EXPECT_THAT(delegate_->told, ElementsAre("update", "update"));
    EXPECT_THAT(titles(), SizeIs(1));
}

TEST_F(UpdatesTest, MayHaveWindowsOfTheirOwnClasses) {
    session_.updateSupply().feed = UpdateFeed::newVersion;
    session_.updateSupply().windowClass = "SPUUpdateWindow";
    start();
    session_.checkForUpdatesAsScheduled();
    session_.advance(1s);
    EXPECT_EQ(Application::sharedApplication().windows().at(0).className(), "SPUUpdateWindow");
}

TEST_F(UpdatesTest, KeepTheMainQueueAndTheTimersWhileTheirAlertIsModal) {
    std::vector<std::string> done;
    Timer timer = Timer::scheduledTimer(1, true, [&](Timer&) { done.emplace_back("timer"); });
    start();
    updates().checkForUser();
    session_.advance(500ms);
    ASSERT_TRUE(updates().isShowingAlert());
    session_.mainThread().enqueue([&] { done.emplace_back("task"); });
    session_.advance(5s);
    EXPECT_THAT(done, IsEmpty());
    session_.user().dismissUpdater();
    EXPECT_THAT(done, ElementsAre("timer"));
    session_.advance(0s);
    EXPECT_THAT(done, ElementsAre("timer", "task"));
    timer.invalidate();
}

TEST_F(UpdatesTest, EndWithTheProcess) {
    start();
    updates().checkForUser();
    session_.advance(500ms);
    ASSERT_TRUE(updates().isShowingAlert());
    session_.user().endApplication();
    EXPECT_FALSE(updates().isShowingAlert());
    EXPECT_THAT(titles(), IsEmpty());
    bool isDone = false;
    session_.mainThread().enqueue([&] { isDone = true; });
    session_.advance(0s);
    EXPECT_TRUE(isDone);
    EXPECT_THAT(delegate_->told, ElementsAre("will alert"));
}

TEST_F(UpdatesTest, DoWithoutADelegateThatIsGone) {
    session_.updateSupply().feed = UpdateFeed::newVersion;
    start();
    delegate_.reset();
    updates().checkForUser();
    session_.advance(1s);
    session_.user().dismissUpdater();
    EXPECT_THAT(titles(), IsEmpty());
}

} // namespace
} // namespace kestrune::sim
