#include "Kestrune/WelcomeView.h"

#include "Kestrune/AccentProminentButtonStyle.h"

#include <memory>
#include <utility>
#include <vector>

namespace kestrune {

namespace {

using ui::Button;
using ui::Color;
using ui::Font;
using ui::FontWeight;
using ui::HorizontalAlignment;
using ui::HStack;
using ui::Label;
using ui::Spacer;
using ui::SystemImage;
using ui::Text;
using ui::TextStyle;
using ui::View;
using ui::VStack;

ui::VStackOptions leading(double spacing) { return {HorizontalAlignment::leading, spacing}; }

View secondary(const View& text, TextStyle style) {
    return text.font(Font::preferred(style)).foregroundStyle(Color::secondary);
}

View prominent(const View& button) {
    return button.buttonStyle(std::make_shared<AccentProminentButtonStyle>(Color::accent, Color::white))
        .controlSize(ui::ControlSize::large);
}

View stepCaption() {
    // The negative padding pulls the page up under the caption.
    return HStack({}, ui::VerbatimText("Step 2 of 2"), Spacer())
        .font(Font::preferred(TextStyle::caption))
        .fontWeight(FontWeight::medium)
        .foregroundStyle(Color::secondary)
        .textCase(ui::TextCase::uppercase)
        .padding({.top = 16, .leading = 24, .bottom = -4, .trailing = 24});
}

View statusMark(bool isTrusted) {
    if (isTrusted) {
        return SystemImage("checkmark.circle.fill").foregroundStyle(Color::green);
    }
    return SystemImage("circle.dashed").foregroundStyle(Color::secondary);
}

View statusText(bool isTrusted) {
    if (isTrusted) {
        return Text("Permission granted");
    }
    return Text("Waiting for permission…");
}

View statusRow(bool isTrusted) {
    return HStack({.spacing = 10}, statusMark(isTrusted).imageScale(ui::ImageScale::large),
                  statusText(isTrusted).foregroundStyle(Color::secondary))
        .padding({.top = 4});
}

} // namespace

View WelcomeView::body() const {
    std::vector<View> parts;
    if (model->currentStep == WelcomeViewModel::Step::intro) {
        parts.push_back(WelcomeIntroStep{model->advanceFromIntro}.body());
    } else {
        parts.push_back(stepCaption());
        parts.push_back(WelcomeAccessibilityStep{model->isAccessibilityTrusted, model->hasRequestedPermission,
                                                 model->requestPermissions, model->openAccessibilitySettings,
                                                 model->finish}
                            .body());
    }
    return VStack({.spacing = 0}, std::move(parts)).frame({.width = contentWidth});
}

View WelcomeIntroStep::body() const {
    constexpr double SymbolSize = 44; // points
    const View symbol = SystemImage("dock.rectangle")
                            .font(Font::system(SymbolSize, FontWeight::light))
                            .foregroundStyle(ui::ForegroundStyle::tint());
    const View heading =
        Text("Welcome to Kestrune").font(Font::preferred(TextStyle::title)).fontWeight(FontWeight::semibold);
    const View thanks = secondary(
        Text("Thanks for picking up Kestrune. You're about to get the Mac Dock to stay exactly where "
             "you want it. No more jumping between screens."),
        TextStyle::body);
    const View announcement = Text("Two quick steps and you're done:")
                                  .font(Font::preferred(TextStyle::callout))
                                  .fontWeight(FontWeight::medium)
                                  .padding({.top = 4});
    const View steps = VStack(leading(8), Label("Grant Accessibility permission", "2.circle.fill"))
                           .foregroundStyle(Color::secondary);
    const View button =
        prominent(Button("Get started", onContinue)).keyboardShortcut(ui::KeyboardShortcut::defaultAction);
    return VStack(leading(18), symbol, heading, thanks, announcement, steps,
                  HStack({}, Spacer(), button).padding({.top = 8}))
        .padding(24);
}

View WelcomeAccessibilityStep::body() const {
    std::vector<View> buttons;
    if (hasRequestedPermission && !isTrusted) {
        buttons.push_back(Button("Open System Settings", onOpenSettings)
                              .buttonStyle(ui::ButtonStyle::link())
                              .controlSize(ui::ControlSize::small));
    }
    if (isTrusted) {
        buttons.push_back(
            prominent(Button("Finish", onFinish)).keyboardShortcut(ui::KeyboardShortcut::defaultAction));
    } else {
        buttons.push_back(prominent(Button("Request permission", onRequestPermissions)));
    }
    const View heading = Text("Grant Accessibility permission")
                             .font(Font::preferred(TextStyle::title2))
                             .fontWeight(FontWeight::semibold);
    const View reason =
        secondary(Text("Kestrune needs to observe window events from other apps so it can keep "
                       "the Dock pinned where you want it."),
                  TextStyle::callout);
    const View explanation = secondary(
        Text("macOS will show a permission dialog. Click **Open System Settings** in that dialog, then "
             "enable **Kestrune** in the Accessibility list. We never read your screen content or "
             "keystrokes."),
        TextStyle::callout);
    return VStack(leading(16), VStack(leading(4), heading, reason), explanation, statusRow(isTrusted),
                  HStack({.spacing = 12}, std::move(buttons)).padding({.top = 8}))
        .padding(24);
}

} // namespace kestrune
