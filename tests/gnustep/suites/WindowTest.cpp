// Hosted views as GNUstep's own views: what stays and what goes when the scene changes, and what is heard,
// focused and drawn. That they show and do what they should is for the contract tests.
#include "mac/Handles.h"
#include "mac/hosting/HostingState.h"
#include "mac/hosting/PlatformMeasurer.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/contract/HostedViews.h"
#include "tests/contract/WindowFixture.h"
#include "tests/gnustep/harness/Allocations.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/standins/appkit/Accessibility.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/world/ViewPicture.h"
#include "ui/View.h"

#include <algorithm>
#include <string>
#include <vector>

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the
// platform's.
extern "C" {
extern const id NSEventTrackingRunLoopMode;
extern id NSApp;
}
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)

namespace kestrune::gnustep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using contract::Counter;
using contract::FilledStyle;

ui::View filledButton(
    std::string_view title, std::function<void()> action = [] {}) {
    return ui::Button(title, std::move(action)).buttonStyle(std::make_shared<FilledStyle>());
}

ui::View linkButton(std::string_view title) {
    return ui::Button(title, [] {}).buttonStyle(ui::ButtonStyle::link());
}

class HostedViewOnGNUstep : public contract::WindowFixture {
protected:
    void host(std::function<ui::View()> body) {
        HostingController controller({std::move(body), model_});
        controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
        window_->setContentViewController(controller);
        show(*window_);
    }

    void setModel(int value) {
        model_->value = value;
        world_.runMainQueue();
    }

    static void turnTheRunLoop(id mode) {
        send<BOOL>(send(classObject("NSRunLoop"), "currentRunLoop"), "runMode:beforeDate:", mode,
                   send(classObject("NSDate"), "date"));
    }

    id window() const { return window_->state()->window.get(); }
    id button(std::string_view title) const { return buttonNamed(window(), title); }
    std::vector<id> views(const char* className) const { return viewsIn(window(), className); }

    mac::Pool pool_;
    std::shared_ptr<Counter> model_ = std::make_shared<Counter>();
    std::optional<Window> window_ = makeWindow("one");
};

TEST_F(HostedViewOnGNUstep, KeepsTheViewsOfWhatStaysWhenSomethingComesBeforeThem) {
    host([this] {
        std::vector<ui::View> row = {filledButton("Request")};
        if (model_->value != 0) {
            row.insert(row.begin(), linkButton("Open"));
        }
        return ui::VStack({},
                          {ui::VerbatimText(model_->value == 0 ? "before" : "after"), ui::HStack({}, row)});
    });
    const id request = button("Request");
    const id text = views("NSTextField").at(0);
    setModel(1);
    EXPECT_EQ(button("Request"), request);
    EXPECT_EQ(views("NSTextField").at(0), text);
    EXPECT_EQ(mac::textOf(send(text, "stringValue")), "after");
    EXPECT_EQ(views("NSView"), (std::vector<id>{text, button("Open"), request}));
}

TEST_F(HostedViewOnGNUstep, KeepsAButtonThatATextComesBefore) {
    host([this] {
        std::vector<ui::View> column = {filledButton("Request"), ui::VerbatimText("below")};
        if (model_->value != 0) {
            column.insert(column.begin(), ui::VerbatimText("above"));
        }
        return ui::VStack({}, column);
    });
    const id request = button("Request");
    const id below = views("NSTextField").at(0);
    setModel(1);
    EXPECT_EQ(button("Request"), request);
    EXPECT_EQ(views("NSTextField").at(1), below);
}

TEST_F(HostedViewOnGNUstep, DoesNotTurnAButtonIntoAnotherOne) {
    host([this] { return filledButton(model_->value == 0 ? "Request" : "Finish"); });
    const mac::Retained request = mac::Retained::retaining(button("Request"));
    setModel(1);
    EXPECT_NE(button("Finish"), request.get());
    EXPECT_EQ(send(request.get(), "superview"), id{});
}

TEST_F(HostedViewOnGNUstep, LeavesTheFocusWhereItIs) {
    host([this] {
        return ui::VStack({}, {ui::VerbatimText("value " + std::to_string(model_->value)),
                               filledButton("one"), filledButton("two")});
    });
    send<BOOL>(window(), "makeFirstResponder:", button("two"));
    setModel(1);
    EXPECT_EQ(send(window(), "firstResponder"), button("two"));
}

TEST_F(HostedViewOnGNUstep, LeadsTheKeyboardThroughTheControlsInTheirOrder) {
    host([this] {
        std::vector<ui::View> row = {ui::Toggle("switch", false, [](bool) {}), filledButton("second")};
        if (model_->value != 0) {
            row.insert(row.begin(), linkButton("first"));
        }
        return ui::VStack({}, row);
    });
    setModel(1);
    const id content = send(window(), "contentView");
    const std::vector<id> controls = {button("first"), views("NSSwitch").at(0), button("second"), content};
    id latest = content;
    for (const id control : controls) {
        EXPECT_EQ(send(latest, "nextKeyView"), control);
        latest = control;
    }
}

// On the Mac the main queue is served while a button is tracked.
TEST_F(HostedViewOnGNUstep, KeepsAButtonThatGoesWhileItIsPressed) {
    bool isGone = false;
    bool wasThereAfterItWentOut = false;
    host([&, this] {
        return model_->value != 0 ? ui::VerbatimText("nothing") : filledButton("Request", [&, this] {
            const id pressed = button("Request");
            whenDeallocated(pressed, this, [&isGone] { isGone = true; });
            model_->value = 1;
            turnTheRunLoop(NSEventTrackingRunLoopMode);
            wasThereAfterItWentOut = button("Request") == nullptr && !isGone;
        });
    });
    world_.clickButton("Request");
    EXPECT_TRUE(wasThereAfterItWentOut);
    world_.letTimePass(0.1);
    EXPECT_TRUE(isGone);
}

TEST_F(HostedViewOnGNUstep, LetsGoOfTheWindowAfterItsOwnButtonDid) {
    bool isGone = false;
    bool wasThereAfterTheAction = false;
    host([&, this] {
        return filledButton("Finish", [&, this] {
            whenDeallocated(window(), this, [&isGone] { isGone = true; });
            window_->orderOut();
            window_.reset();
            wasThereAfterTheAction = !isGone;
        });
    });
    world_.clickButton("Finish");
    world_.letTimePass(0.1);
    EXPECT_TRUE(wasThereAfterTheAction);
    EXPECT_TRUE(isGone);
}

// GNUstep itself keeps what it sends events to for longer.
TEST_F(HostedViewOnGNUstep, KeepsAViewThatGoesUntilItsTurnIsOver) {
    bool isGone = false;
    host([this] { return model_->value == 0 ? filledButton("Request") : ui::VerbatimText("nothing"); });
    {
        const mac::Pool pool;
        whenDeallocated(button("Request"), this, [&isGone] { isGone = true; });
        model_->value = 1;
        turnTheRunLoop(NSEventTrackingRunLoopMode);
    }
    EXPECT_THAT(views("NSButton"), IsEmpty());
    EXPECT_FALSE(isGone);
    world_.letTimePass(0.1);
    EXPECT_TRUE(isGone);
}

TEST_F(HostedViewOnGNUstep, KeepsAWindowThatItsOwnButtonLetsGoOfUntilTheTurnIsOver) {
    bool isGone = false;
    host([&, this] {
        return filledButton("Finish", [&, this] {
            window_->orderOut();
            window_.reset();
        });
    });
    whenDeallocated(window(), this, [&isGone] { isGone = true; });
    {
        const mac::Pool pool;
        send<void>(send(window(), "contentView"), "pressButton:", button("Finish"));
    }
    EXPECT_FALSE(isGone);
    world_.letTimePass(0.1);
    EXPECT_TRUE(isGone);
}

TEST_F(HostedViewOnGNUstep, BeginsAtItsOriginWhileItIsInNoWindow) {
    const HostingView view({[] { return ui::VerbatimText("text").frame({.width = 30, .height = 20}); },
                            std::make_shared<contract::Counter>()});
    EXPECT_EQ(send<Rect>(view.state()->view.get(), "frame"), Rect(0, 0, 30, 20));
}

TEST_F(HostedViewOnGNUstep, TurnsASwitchBackThatTheModelDoesNotFollow) {
    host([] { return ui::Toggle("switch", false, [](bool) {}); });
    world_.clickSwitch(0);
    EXPECT_THAT(world_.shownWindows().at(0).switches, ElementsAre(true));
    world_.runMainQueue();
    EXPECT_THAT(world_.shownWindows().at(0).switches, ElementsAre(false));
}

TEST_F(HostedViewOnGNUstep, ReadsButtonsAndSwitchesOutAndPassesSymbolsOver) {
    host([] {
        return ui::VStack({}, {ui::SystemImage("checkmark.circle.fill"), filledButton("filled"),
                               ui::Button("bordered", [] {}), ui::Toggle("switch", true, [](bool) {})});
    });
    std::vector<std::string> readOut;
    for (const id view : views("NSView")) {
        if (isAccessibilityElement(view)) {
            readOut.push_back(accessibilityLabel(view));
        }
    }
    EXPECT_THAT(readOut, ElementsAre("filled", "bordered", "switch"));
}

TEST_F(HostedViewOnGNUstep, ShowsNothingForASymbolThatThePlatformDoesNotHave) {
    host([] { return ui::HStack({}, {ui::SystemImage("no.such.symbol"), ui::VerbatimText("text")}); });
    for (const id view : views("NSImageView")) {
        EXPECT_EQ(send(view, "image"), id{});
    }
    EXPECT_EQ(mac::PlatformMeasurer().measureSymbol({"no.such.symbol", {}}), Size());
}

TEST_F(HostedViewOnGNUstep, SetsASymbolInTheSizeOfItsFontAndScale) {
    const mac::PlatformMeasurer measurer;
    const ui::StyledSymbol plain{"circle.dashed", ui::Font::system(13)};
    const double height = measurer.measureSymbol(plain).height;
    EXPECT_GT(height, 0);
    EXPECT_GT(measurer.measureSymbol({"circle.dashed", ui::Font::system(13), ui::ImageScale::large}).height,
              height);
    EXPECT_GT(measurer.measureSymbol({"circle.dashed", ui::Font::system(44)}).height, 3 * height);
}

TEST_F(HostedViewOnGNUstep, DimsALinkWhileItIsPressed) {
    host([] { return linkButton("Open System Settings"); });
    const id link = button("Open System Settings");
    const double atRest = ViewPicture(link).ink();
    highlight(link, true);
    const double pressed = ViewPicture(link).ink();
    highlight(link, false);
    EXPECT_GT(pressed, 0.4 * atRest);
    EXPECT_LT(pressed, 0.7 * atRest);
    EXPECT_EQ(ViewPicture(link).ink(), atRest);
}

TEST_F(HostedViewOnGNUstep, DimsOnlyTheShapeOfAFilledButtonWhileItIsPressed) {
    host([] { return filledButton(" "); });
    const id filled = button(" ");
    const double atRest = ViewPicture(filled).ink();
    highlight(filled, true);
    EXPECT_NEAR(ViewPicture(filled).ink() / atRest, 0.75, 0.02);
}

TEST_F(HostedViewOnGNUstep, IsInOneOfTheWindowsThatThereAre) {
    std::vector<id> windows;
    for (const Window& each : application_->windows()) {
        windows.push_back(each.state()->window.get());
    }
    EXPECT_EQ(windows.size(), send<mac::Unsigned>(send(NSApp, "windows"), "count"));
    EXPECT_NE(std::find(windows.begin(), windows.end(), window()), windows.end());
}

TEST_F(HostedViewOnGNUstep, LetsAWindowFollowAHostingView) {
    const HostingView content(
        {[this] { return ui::RoundedRectangle({}).frame({.width = 240, .height = 90.0 + model_->value}); },
         model_});
    EXPECT_EQ(send<Rect>(content.state()->view.get(), "frame"), Rect(0, 0, 240, 90));
    window_->setContentView(content);
    show(*window_);
    EXPECT_EQ(send(window(), "contentView"), content.state()->view.get());
    EXPECT_EQ(send(window(), "initialFirstResponder"), content.state()->view.get());
    EXPECT_EQ(world_.shownWindows().at(0).content.size, (Size{240, 90}));
    setModel(60);
    EXPECT_EQ(world_.shownWindows().at(0).content.size, (Size{240, 150}));
    EXPECT_EQ(send<Rect>(content.state()->view.get(), "frame").size, (Size{240, 150}));
}

TEST_F(HostedViewOnGNUstep, WrapsAndCutsNoText) {
    const std::string words = "Kestrune needs to observe window events from other apps so it can keep the "
                              "Dock pinned where you want it. **Grün** gypsy jumping.";
    host([&words, this] {
        return ui::VStack({.alignment = ui::HorizontalAlignment::leading},
                          {ui::VerbatimText("Short").font(ui::Font::preferred(ui::TextStyle::title)),
                           ui::Text(words), ui::Text(words).font(ui::Font::preferred(ui::TextStyle::callout)),
                           ui::Text(words).fontWeight(ui::FontWeight::semibold)})
            .frame({.width = 180.0 + model_->value});
    });
    constexpr double Insets = 4; // points; of a label, left and right
    constexpr mac::Integer FromTheTop = 1 | 2;
    for (int widening = 0; widening < 60; ++widening) {
        setModel(widening);
        for (const id label : views("NSTextField")) {
            const Size size = send<Rect>(label, "frame").size;
            const Size needed =
                send<Rect>(send(label, "attributedStringValue"),
                           "boundingRectWithSize:options:", Size{size.width - Insets, 1e6}, FromTheTop)
                    .size;
            EXPECT_LE(needed.width, size.width - Insets);
            EXPECT_LE(needed.height, size.height);
        }
    }
}

TEST_F(HostedViewOnGNUstep, RendersAThousandTimesWithoutKeepingAnObject) {
    host([this] {
        std::vector<ui::View> row = {filledButton("Request"), ui::SystemImage("circle.dashed")};
        if (model_->value % 2 != 0) {
            row.insert(row.begin(), linkButton("Open"));
        }
        return ui::VStack({},
                          {ui::VerbatimText("value " + std::to_string(model_->value)), ui::HStack({}, row),
                           ui::Toggle("switch", model_->value % 2 != 0, [](bool) {})})
            .frame({.width = 300, .height = 200});
    });
    const auto render = [this](int times) {
        for (int time = 0; time < times; ++time) {
            const mac::Pool pool;
            setModel(model_->value + 1);
        }
        // What was kept for a turn goes with the next.
        world_.letTimePass(0.1);
    };
    countAllocations();
    // GNUstep keeps the layouts of its latest texts.
    render(200);
    const AllocatedObjects before = allocatedObjects();
    EXPECT_GT(before.count("KestruneDrawnButton"), 0U);
    render(1000);
    EXPECT_THAT(growth(before, allocatedObjects()), IsEmpty());
}

TEST_F(HostedViewOnGNUstep, LeavesNothingOfAWindowBehind) {
    const auto showAndForget = [this](int times) {
        for (int time = 0; time < times; ++time) {
            const mac::Pool pool;
            window_ = makeWindow("one");
            host([] {
                return ui::VStack({}, {ui::VerbatimText("text"), ui::SystemImage("circle.dashed"),
                                       filledButton("Request"), ui::Toggle("switch", true, [](bool) {})});
            });
            window_->orderOut();
            window_.reset();
            world_.letTimePass(0.1);
            forgetEvents();
        }
    };
    countAllocations();
    showAndForget(5);
    const AllocatedObjects before = allocatedObjects();
    EXPECT_GT(before.count("KestruneHostingView"), 0U);
    showAndForget(50);
    EXPECT_THAT(growth(before, allocatedObjects()), IsEmpty());
}

using WindowControllerOnGNUstepDeathTest = contract::WindowFixture;

// As the platform makes one of whatever is observed.
TEST_F(WindowControllerOnGNUstepDeathTest, SaysWhereItIsDefinedAsAnInstanceOfASubclassToo) {
    const contract::RecordingWindowController known(makeWindow("one"));
    const Class subclass =
        objc_allocateClassPair(classNamed("RecordingWindowController"), "ObservedWindowController", 0);
    objc_registerClassPair(subclass);
    EXPECT_DEATH(send(send(reinterpret_cast<id>(subclass), "alloc"), "initWithCoder:", id{}),
                 "contract/RecordingWindowController: Fatal error: init\\(coder:\\) is not supported");
}

} // namespace
} // namespace kestrune::gnustep
