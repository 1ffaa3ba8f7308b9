#include "Kestrune/UpdaterManager.h"

#include "sim/services/WindowState.h"
#include "tests/Kestrune/SettingsFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using namespace std::chrono_literals;

class Updates : public SettingsFixture {
protected:
    explicit Updates(sim::BundleContents bundle = bundleOfVersion("2.1", "57"),
                     sim::UpdateFramework framework = sim::UpdateFramework::working)
        : SettingsFixture(std::move(bundle), framework) {}

    void start() {
        manager = UpdaterManager::shared();
        session.journal().take();
    }

    void setPolicy(ActivationPolicy policy) { session.application().policy = policy; }
    ActivationPolicy policy() { return session.application().policy; }
    std::size_t observers() { return session.observers().count(WindowDidBecomeKeyNotification); }

    // A window of any class and title, which is on screen from then on.
    std::shared_ptr<Window::State> showWindow(std::string_view className, std::string_view title) {
        Window window({0, 0, 200, 100}, WindowStyleMask::titled, BackingStoreType::buffered, false);
        window.state()->className = className;
        window.state()->title = title;
        window.state()->hidesOnDeactivate = true;
        window.makeKeyAndOrderFront();
        windows.push_back(window);
        session.journal().take();
        return window.state();
    }

    static bool floats(const Window::State& window) {
        return window.level == WindowLevel::floating && !window.hidesOnDeactivate;
    }

    std::shared_ptr<UpdaterManager> manager;
    std::vector<Window> windows;
};

class UpdatesWithoutFeed : public Updates {
protected:
    UpdatesWithoutFeed() : Updates(sim::BundleContents()) {}
};

class UpdatesWithANumberForAFeed : public Updates {
protected:
    UpdatesWithANumberForAFeed() : Updates({.infoDictionary = {{"SUFeedURL", {std::int64_t{5}}}}}) {}
};

class UpdatesWithoutFramework : public Updates {
protected:
    UpdatesWithoutFramework() : Updates(bundleOfVersion("2.1", "57"), sim::UpdateFramework::missing) {}
};

class UpdatesThatDoNotStart : public Updates {
protected:
    UpdatesThatDoNotStart() : Updates(bundleOfVersion("2.1", "57"), sim::UpdateFramework::broken) {}
};

TEST_F(Updates, AreStartedInOrder) {
    EXPECT_THAT(callsOf(UpdaterManager::shared),
                ElementsAreArray(inOrder(
                    {{"-[UpdaterManager init]", "NSBundle.mainBundle",
                      "-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, UpdaterManager",
                      "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, "
                      "main bundle, UpdaterManager",
                      "-[SPUUpdater startUpdater:]", "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false",
                      "-[NSBundle infoDictionary][SUFeedURL]"},
                     openingLog("updater"),
                     {"os_log_info(updater, Sparkle initialized — feed: "
                      "https://kestrune.org/appcast.xml)"}})));
}

TEST_F(Updates, LogTheirFeed) {
    start();
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords()[0].level, sim::LogLevel::info);
    EXPECT_EQ(session.logRecords()[0].subsystem, "org.kestrune.Kestrune");
    EXPECT_TRUE(manager->updater());
}

TEST_F(Updates, AreStartedOnce) {
    start();
    EXPECT_EQ(UpdaterManager::shared(), manager);
    EXPECT_THAT(session.logRecords(), SizeIs(1));
}

TEST_F(Updates, AreNotDownloadedOfThemselves) {
    start();
    EXPECT_FALSE(session.defaults().find("SUAutomaticallyUpdate")->asBool());
}

TEST_F(UpdatesWithoutFeed, SayThatTheirFeedIsNotSet) {
    start();
    EXPECT_EQ(session.logRecords().at(0).message, "Sparkle initialized — feed: NOT SET");
    EXPECT_TRUE(manager->updater());
}

TEST_F(UpdatesWithANumberForAFeed, SayThatTheirFeedIsNotSet) {
    start();
    EXPECT_EQ(session.logRecords().at(0).message, "Sparkle initialized — feed: NOT SET");
}

TEST_F(UpdatesThatDoNotStart, AreLoggedAndGivenUp) {
    start();
    EXPECT_EQ(session.logRecords().at(0).level, sim::LogLevel::error);
    EXPECT_EQ(session.logRecords().at(0).category, "updater");
    EXPECT_EQ(session.logRecords().at(0).message, "Sparkle init failed: The updater failed to start.");
    start();
    EXPECT_FALSE(manager->updater());
    EXPECT_EQ(session.defaults().find("SUAutomaticallyUpdate"), nullptr);
    EXPECT_THAT(session.logRecords(), SizeIs(1));
}

TEST_F(UpdatesWithoutFramework, SayWhatIsMissing) {
    start();
    EXPECT_FALSE(manager->updater());
    EXPECT_EQ(session.logRecords().at(0).message,
              "Sparkle init failed: " + std::string(MissingUpdateFramework));
}

TEST_F(Updates, LeaveTheShowingToTheFramework) {
    start();
    EXPECT_FALSE(manager->supportsGentleScheduledUpdateReminders());
    EXPECT_THAT(manager->actionMethods(), IsEmpty());
}

TEST_F(Updates, BeginTheirSessionInOrderAndLater) {
    start();
    const Calls observing = callsOf([this] { manager->startWindowObserver(); });
    manager->stopWindowObserver();
    EXPECT_THAT(callsOf([this] { manager->standardUserDriverWillHandleShowingUpdate(); }),
                ElementsAre("Task on the main actor"));
    settle();
    EXPECT_THAT(calls(), ElementsAreArray(inOrder(
                             {observing,
                              {"NSApp", "-[NSApplication activationPolicy]",
                               "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyRegular",
                               "-[NSApplication activateIgnoringOtherApps:] true"}})));
}

TEST_F(Updates, EndTheirSessionInOrderAndLater) {
    setPolicy(ActivationPolicy::accessory);
    start();
    manager->standardUserDriverWillHandleShowingUpdate();
    settle();
    EXPECT_THAT(callsOf([this] { manager->standardUserDriverWillFinishUpdateSession(); }),
                ElementsAre("Task on the main actor"));
    settle();
    const Calls ending = calls();
    EXPECT_EQ(observers(), 0U);
    manager->startWindowObserver();
    const Calls nothingObserved = callsOf([this] { manager->stopWindowObserver(); });
    EXPECT_THAT(
        ending,
        ElementsAreArray(inOrder(
            {nothingObserved,
             {"NSApp", "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory"}})));
}

TEST_F(Updates, PutBackThePolicyThatTheFirstAnnouncementFound) {
    setPolicy(ActivationPolicy::accessory);
    start();
    manager->standardUserDriverWillHandleShowingUpdate();
    settle();
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    session.user().switchAway();
    manager->standardUserDriverWillHandleShowingUpdate();
    settle();
    EXPECT_TRUE(session.application().isActive);
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_EQ(observers(), 1U);
    manager->standardUserDriverWillFinishUpdateSession();
    settle();
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
}

TEST_F(Updates, ForgetThePolicyWithTheirSession) {
    setPolicy(ActivationPolicy::accessory);
    start();
    manager->standardUserDriverWillHandleShowingUpdate();
    manager->standardUserDriverWillFinishUpdateSession();
    settle();
    setPolicy(ActivationPolicy::regular);
    manager->standardUserDriverWillHandleShowingUpdate();
    manager->standardUserDriverWillFinishUpdateSession();
    settle();
    EXPECT_EQ(policy(), ActivationPolicy::regular);
}

TEST_F(Updates, ThatWereNeverAnnouncedLeaveThePolicyAlone) {
    setPolicy(ActivationPolicy::accessory);
    start();
    manager->startWindowObserver();
    for (int end = 0; end < 2; ++end) {
        manager->standardUserDriverWillFinishUpdateSession();
        settle();
        EXPECT_EQ(observers(), 0U);
        EXPECT_THAT(calls(), Not(hasCallAbout("-[NSApplication setActivationPolicy:]")));
    }
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
}

TEST_F(Updates, RaiseTheirWindowsAroundAnAlertAndLater) {
    start();
    const auto window = showWindow("SPUWindow", "");
    manager->standardUserDriverWillShowModalAlert();
    EXPECT_FALSE(floats(*window));
    settle();
    EXPECT_TRUE(floats(*window));
    const auto another = showWindow("SPUWindow", "");
    manager->standardUserDriverDidShowModalAlert();
    EXPECT_FALSE(floats(*another));
    settle();
    EXPECT_TRUE(floats(*another));
}

TEST_F(Updates, ObserveWindowsOnceInOrder) {
    start();
    const auto startObserving = [this] { manager->startWindowObserver(); };
    const auto stopObserving = [this] { manager->stopWindowObserver(); };
    const Calls adding = {"NSNotificationCenter.defaultCenter", "NSOperationQueue.mainQueue",
                          "-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] "
                          "NSWindowDidBecomeKeyNotification, nil, main queue"};
    const Calls removing = {"NSNotificationCenter.defaultCenter", "-[NSNotificationCenter removeObserver:]"};
    EXPECT_THAT(callsOf(startObserving), ElementsAreArray(adding));
    EXPECT_THAT(callsOf(startObserving), ElementsAreArray(inOrder({removing, adding})));
    EXPECT_EQ(observers(), 1U);
    EXPECT_THAT(callsOf(stopObserving), ElementsAreArray(removing));
    EXPECT_THAT(callsOf(stopObserving), IsEmpty());
    EXPECT_EQ(observers(), 0U);
}

struct WindowExample {
    std::string name;
    std::string className;
    std::string title;
    bool floatsAsKey;
    bool isRaised;
};

const WindowExample WindowExamples[] = {
    {"ClassOfTheFramework", "SPUUpdateWindow", "", true, true},
    {"ClassWithTheNameOfTheFramework", "MySparkleAlert", "", true, true},
    {"TitleOfTheAlert", "NSWindow", "Software Update", true, false},
    {"UpdateInTheTitle", "NSWindow", "My Updates of 2026", true, false},
    {"TitleOfTheStatusWindow", "NSWindow", "Updating Kestrune", false, false},
    {"OtherCase", "NSsparkleWindow", "software update", false, false},
    {"LowerCaseClass", "spuWindow", "", false, false},
    {"Settings", "NSWindow", "Kestrune Settings", false, false},
    {"Nothing", "NSWindow", "", false, false},
};

class UpdatesWindow : public Updates, public ::testing::WithParamInterface<WindowExample> {};

TEST_P(UpdatesWindow, FloatsOnceItIsKeyWhileItIsObserved) {
    start();
    session.user().switchToApplication();
    manager->startWindowObserver();
    calls();
    const auto window = showWindow(GetParam().className, GetParam().title);
    EXPECT_EQ(floats(*window), GetParam().floatsAsKey);
    EXPECT_TRUE(window->level == WindowLevel::normal || GetParam().floatsAsKey);
}

TEST_P(UpdatesWindow, StaysWhereItIsWhileNobodyObservesIt) {
    start();
    session.user().switchToApplication();
    manager->startWindowObserver();
    manager->stopWindowObserver();
    EXPECT_FALSE(floats(*showWindow(GetParam().className, GetParam().title)));
}

TEST_P(UpdatesWindow, IsRaisedByItsClassAlone) {
    start();
    const auto window = showWindow(GetParam().className, GetParam().title);
    manager->raiseUpdaterWindows();
    EXPECT_EQ(floats(*window), GetParam().isRaised);
}

INSTANTIATE_TEST_SUITE_P(Windows, UpdatesWindow, ::testing::ValuesIn(WindowExamples),
                         [](const auto& example) { return example.param.name; });

TEST_F(Updates, MakeTheWindowFloatThatBecomesKeyInOrder) {
    start();
    session.user().switchToApplication();
    manager->startWindowObserver();
    windows.clear();
    Window window({0, 0, 200, 100}, WindowStyleMask::titled, BackingStoreType::buffered, false);
    window.state()->title = "Software Update";
    EXPECT_THAT(callsOf([&] { window.makeKeyAndOrderFront(); }),
                ElementsAre("-[NSWindow makeKeyAndOrderFront:]", "-[NSNotification object]",
                            "object_getClassName", "-[NSWindow title]",
                            "-[NSWindow setLevel:] NSFloatingWindowLevel",
                            "-[NSWindow setHidesOnDeactivate:] false"));
}

TEST_F(Updates, AskForTheTitleOnlyOfAWindowWhoseClassSaysNothing) {
    start();
    session.user().switchToApplication();
    manager->startWindowObserver();
    const auto becomeKey = [&](std::string_view className) {
        Window window({0, 0, 200, 100}, WindowStyleMask::titled, BackingStoreType::buffered, false);
        window.state()->className = className;
        return callsOf([&] { window.makeKeyAndOrderFront(); });
    };
    EXPECT_THAT(becomeKey("SPUWindow"), Not(Contains("-[NSWindow title]")));
    EXPECT_THAT(becomeKey("NSWindow"), Contains("-[NSWindow title]").Times(1));
}

TEST_F(Updates, DoNotLookAtAnObjectThatIsNoWindow) {
    start();
    manager->startWindowObserver();
    EXPECT_THAT(callsOf([this] { session.observers().post(WindowDidBecomeKeyNotification); }),
                Not(Contains("object_getClassName")));
}

TEST_F(Updates, RaiseEveryWindowOfTheirsAndThenActivateInOrder) {
    start();
    showWindow("SPUFirst", "");
    showWindow("NSWindow", "Software Update");
    showWindow("SparkleSecond", "");
    const Calls floating = {"-[NSWindow setLevel:] NSFloatingWindowLevel",
                            "-[NSWindow setHidesOnDeactivate:] false"};
    EXPECT_THAT(callsOf([this] { manager->raiseUpdaterWindows(); }),
                ElementsAreArray(inOrder({{"NSApp", "-[NSApplication windows]"},
                                          {"object_getClassName"},
                                          floating,
                                          {"object_getClassName", "object_getClassName"},
                                          floating,
                                          {"-[NSApplication activateIgnoringOtherApps:] true"}})));
}

TEST_F(Updates, ActivateTheApplicationAlsoWithoutAWindow) {
    start();
    manager->raiseUpdaterWindows();
    settle();
    EXPECT_TRUE(session.application().isActive);
}

TEST_F(Updates, DoNothingAnyMoreOnceTheManagerIsGone) {
    setPolicy(ActivationPolicy::accessory);
    start();
    const auto window = showWindow("SPUWindow", "");
    manager->standardUserDriverWillHandleShowingUpdate();
    manager->standardUserDriverWillShowModalAlert();
    manager->standardUserDriverDidShowModalAlert();
    manager->standardUserDriverWillFinishUpdateSession();
    const std::weak_ptr<UpdaterManager> weakManager = manager;
    manager.reset();
    session.process().objects().clear();
    ASSERT_TRUE(weakManager.expired());
    settle();
    EXPECT_EQ(observers(), 0U);
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
    EXPECT_FALSE(floats(*window));
    EXPECT_FALSE(session.application().isActive);
}

} // namespace
} // namespace kestrune
