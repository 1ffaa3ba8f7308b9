// The lines that calls of AppKit and Foundation leave in the journal, and the objects that they make.
#include "platform/AccessibilityTrust.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/StatusBar.h"
#include "platform/Timer.h"
#include "platform/Workspace.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingObjects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using contract::Record;
using testing::ElementsAre;

class ApplicationCallsTest : public testing::Test {
protected:
    // Without the lines so far.
    std::vector<std::string> linesOf(const std::function<void()>& calls) {
        session_.journal().take();
        calls();
        return session_.journal().take();
    }

    Session session_;
};

TEST_F(ApplicationCallsTest, AreJournaledForTheApplicationsLife) {
    const auto delegate = std::make_shared<contract::RecordingApplicationDelegate>();
    EXPECT_THAT(linesOf([&] {
                    Application::nsApp();
                    Application application = Application::sharedApplication();
                    application.setDelegate(delegate);
                    application.setActivationPolicy(ActivationPolicy::regular);
                    application.setActivationPolicy(ActivationPolicy::accessory);
                    application.setActivationPolicy(ActivationPolicy::prohibited);
                    application.run();
                    application.terminate();
                    application.setDelegate({});
                }),
                ElementsAre("NSApp", "NSApplication.sharedApplication",
                            "-[NSApplication setDelegate:] RecordingApplicationDelegate",
                            "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyRegular",
                            "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory",
                            "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyProhibited",
                            "-[NSApplication run]",
                            "-[RecordingApplicationDelegate applicationDidFinishLaunching:]",
                            "-[NSApplication terminate:]",
                            "-[RecordingApplicationDelegate applicationWillTerminate:]",
                            "-[NSApplication setDelegate:] nil"));
}

TEST_F(ApplicationCallsTest, AreJournaledForObjects) {
    EXPECT_THAT(linesOf([] { const contract::RecordingTarget target; }),
                ElementsAre("-[RecordingTarget init]"));
}

TEST_F(ApplicationCallsTest, AreJournaledForMenus) {
    const auto delegate = std::make_shared<contract::RecordingMenuDelegate>();
    EXPECT_THAT(linesOf([&] {
                    Menu menu;
                    menu.setAutoenablesItems(false);
                    menu.addItem(MenuItem::separatorItem());
                    menu.setDelegate(delegate);
                    menu.setDelegate({});
                    const Menu titled("Edit");
                    Application::sharedApplication().setMainMenu(menu);
                }),
                ElementsAre("-[NSMenu init]", "-[NSMenu setAutoenablesItems:] false",
                            "+[NSMenuItem separatorItem]", "-[NSMenu addItem:]",
                            "-[NSMenu setDelegate:] RecordingMenuDelegate", "-[NSMenu setDelegate:] nil",
                            "-[NSMenu initWithTitle:] \"Edit\"", "NSApplication.sharedApplication",
                            "-[NSApplication setMainMenu:] 1 items"));
}

TEST_F(ApplicationCallsTest, AreJournaledForMenuItems) {
    const auto target = std::make_shared<contract::RecordingTarget>();
    const Menu submenu("Edit");
    EXPECT_THAT(linesOf([&] {
                    MenuItem item("Redo", Record, "z");
                    item.setTarget(target);
                    item.setTarget({});
                    item.setKeyEquivalentModifierMask(EventModifierFlags::shift |
                                                      EventModifierFlags::command);
                    item.setRepresentedObject(std::string("text"));
                    item.setRepresentedObject(std::int64_t{7});
                    item.representedObject();
                    item.setState(ControlState::mixed);
                    item.setEnabled(false);
                    const MenuItem heading("Heading", std::nullopt, "");
                    MenuItem plain;
                    plain.setSubmenu(submenu);
                }),
                ElementsAre("-[NSMenuItem initWithTitle:action:keyEquivalent:] \"Redo\", record:, \"z\"",
                            "-[NSMenuItem setTarget:] RecordingTarget", "-[NSMenuItem setTarget:] nil",
                            "-[NSMenuItem setKeyEquivalentModifierMask:] 1179648",
                            "-[NSMenuItem setRepresentedObject:] text",
                            "-[NSMenuItem setRepresentedObject:] 7", "-[NSMenuItem representedObject]",
                            "-[NSMenuItem setState:] -1", "-[NSMenuItem setEnabled:] false",
                            "-[NSMenuItem initWithTitle:action:keyEquivalent:] \"Heading\", nil, \"\"",
                            "-[NSMenuItem init]", "-[NSMenuItem setSubmenu:] \"Edit\""));
}

TEST_F(ApplicationCallsTest, AreJournaledForAStatusItemAndItsImage) {
    const Menu menu;
    EXPECT_THAT(linesOf([&] {
                    StatusItem item = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
                    StatusBarButton button = item.button().value();
                    Image image = Image::imageNamed("MenuBarIcon").value();
                    image.setTemplate(true);
                    image.setSize({20, 20.5});
                    button.setImage(image);
                    button.setImage(std::nullopt);
                    button.setImageScaling(ImageScaling::proportionallyUpOrDown);
                    button.setToolTip("tool tip");
                    item.setMenu(menu);
                }),
                ElementsAre("NSStatusBar.systemStatusBar", "-[NSStatusBar statusItemWithLength:] -1",
                            "-[NSStatusItem button]", "+[NSImage imageNamed:] MenuBarIcon",
                            "-[NSImage setTemplate:] true", "-[NSImage setSize:] 20 x 20.5",
                            "-[NSStatusBarButton setImage:] MenuBarIcon",
                            "-[NSStatusBarButton setImage:] nil", "-[NSStatusBarButton setImageScaling:] 3",
                            "-[NSStatusBarButton setToolTip:] tool tip", "-[NSStatusItem setMenu:] 0 items"));
}

TEST_F(ApplicationCallsTest, AreJournaledForTheMainThread) {
    EXPECT_THAT(linesOf([] {
                    Timer timer = Timer::scheduledTimer(1.5, true, [](Timer& /*timer*/) {});
                    timer.invalidate();
                    NotificationCenter::defaultCenter().addObserver(
                        ApplicationDidChangeScreenParametersNotification, OperationQueue::mainQueue(),
                        [](const Notification&) {});
                    MainActor::startTask([] {});
                    MainActor::isCurrent();
                }),
                ElementsAre("+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] 1.5, true",
                            "-[NSTimer invalidate]", testing::_, testing::_,
                            "-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] "
                            "NSApplicationDidChangeScreenParametersNotification, nil, main queue",
                            "Task on the main actor", "+[NSThread isMainThread]"));
}

TEST_F(ApplicationCallsTest, AreJournaledForTheCenterAndItsQueue) {
    EXPECT_THAT(linesOf([] { NotificationCenter::defaultCenter(); }),
                ElementsAre("NSNotificationCenter.defaultCenter"));
    EXPECT_THAT(linesOf([] { OperationQueue::mainQueue(); }), ElementsAre("NSOperationQueue.mainQueue"));
}

TEST_F(ApplicationCallsTest, AreJournaledForTextsURLsTrustAndDebugMessages) {
    const Log log("subsystem", "category");
    EXPECT_THAT(linesOf([&] {
                    Bundle::mainBundle().localizedString("Quit");
                    Bundle::mainBundle().infoDictionaryString("CFBundleName");
                    const auto url = URL::withString("kestrune-test:address");
                    Workspace::sharedWorkspace().openURL(*url);
                    url->absoluteString();
                    URL::withString("");
                    isProcessTrustedWithOptions({true});
                    session_.user().setPermission(Permission::notListed);
                    isProcessTrustedWithOptions({false});
                    log.debug(LogMessage::of<"message">());
                }),
                ElementsAre("NSBundle.mainBundle", "-[NSBundle localizedStringForKey:value:table:] Quit",
                            "NSBundle.mainBundle", "-[NSBundle infoDictionary][CFBundleName]",
                            "+[NSURL URLWithString:] kestrune-test:address", "NSWorkspace.sharedWorkspace",
                            "-[NSWorkspace openURL:] kestrune-test:address", "-[NSURL absoluteString]",
                            "+[NSURL URLWithString:] ",
                            "AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: true}) -> true",
                            "AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: false}) -> false",
                            "os_log_debug(category, message)"));
}

// Objective-C objects go with their last reference, without a call that a journal could show.
TEST_F(ApplicationCallsTest, CountTheObjectsThatTheApplicationKeeps) {
    {
        Menu menu;
        EXPECT_EQ(session_.liveObjects(), 1);
        {
            const MenuItem item;
            EXPECT_EQ(session_.liveObjects(), 2);
            menu.addItem(item);
        }
        EXPECT_EQ(session_.liveObjects(), 2);
        const MenuItem separator = MenuItem::separatorItem();
        EXPECT_EQ(session_.liveObjects(), 3);
        StatusItem statusItem = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
        EXPECT_EQ(session_.liveObjects(), 4);
        statusItem.setMenu(menu);
        const contract::RecordingTarget target;
        EXPECT_EQ(session_.liveObjects(), 5);
        Timer timer = Timer::scheduledTimer(1, true, [](Timer& /*timer*/) {});
        EXPECT_EQ(session_.liveObjects(), 6);
        timer.invalidate();
        EXPECT_EQ(session_.liveObjects(), 6);
        session_.journal().take();
    }
    EXPECT_EQ(session_.liveObjects(), 0);
    EXPECT_THAT(session_.journal().take(), testing::IsEmpty());
}

TEST_F(ApplicationCallsTest, CountATimerUntilTheRunLoopLetsGo) {
    Timer::scheduledTimer(1, false, [](Timer& /*timer*/) {});
    EXPECT_EQ(session_.liveObjects(), 1);
    session_.advance(std::chrono::seconds(1));
    EXPECT_EQ(session_.liveObjects(), 0);
}

} // namespace
} // namespace kestrune::sim
