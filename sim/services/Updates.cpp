#include "sim/services/Updates.h"

#include "sim/formats/BundleContents.h"
#include "sim/formats/IconSymbol.h"
#include "sim/services/HostedView.h"
#include "sim/services/Journal.h"
#include "sim/services/MainThread.h"
#include "sim/services/UpdateSupply.h"
#include "sim/services/WindowState.h"
#include "sim/services/Windows.h"

#include <utility>
#include <vector>

namespace kestrune::sim {

namespace {

constexpr std::string_view AlertClass = "_NSAlertPanel";

constexpr double IconSide = 64;

ui::View icon(const BundleContents& bundle) {
    return ui::SystemImage(iconSymbol(bundle.iconFile())).font(ui::Font::system(IconSide));
}

// Beside the application's icon a sentence, an explanation, and buttons in a row.
ui::View page(const BundleContents& bundle, std::string_view heading, std::string_view text,
              std::vector<ui::View> buttons) {
    constexpr double Margin = 20;
    constexpr double ContentWidth = 500;
    const ui::View texts =
        ui::VStack({ui::HorizontalAlignment::leading, 10},
                   ui::VerbatimText(heading).font(ui::Font::preferred(ui::TextStyle::headline)),
                   ui::VerbatimText(text).font(ui::Font::preferred(ui::TextStyle::callout)),
                   ui::HStack({.spacing = 12}, std::move(buttons)).padding({.top = 6}));
    return ui::HStack({ui::VerticalAlignment::top, 16}, icon(bundle), texts)
        .frame({.width = ContentWidth})
        .padding(Margin);
}

constexpr double AlertWidth = 260;
constexpr double AlertMargin = 16;

// The default button of an alert is as wide as the alert.
class AlertButtonStyle final : public ui::ButtonStyle {
public:
    ui::View makeBody(const Configuration& configuration) const override {
        return configuration.label.foregroundStyle(ui::Color::white)
            .frame({.width = AlertWidth - 2 * AlertMargin, .height = 28})
            .background(ui::RoundedRectangle({.cornerRadius = 6,
                                              .fill = ui::Color::accent,
                                              .opacity = configuration.isPressed ? 0.8 : 1.0}));
    }
};

// A narrow column: the icon, a sentence, an explanation and the button.
ui::View alertPage(const BundleContents& bundle, std::string_view heading, std::string_view text,
                   const ui::View& button) {
    return ui::VStack({.spacing = 10}, icon(bundle),
                      ui::VerbatimText(heading).font(ui::Font::preferred(ui::TextStyle::headline)),
                      ui::VerbatimText(text)
                          .font(ui::Font::preferred(ui::TextStyle::subheadline))
                          .multilineTextAlignment(ui::TextAlignment::center),
                      button.buttonStyle(std::make_shared<AlertButtonStyle>()).padding({.top = 6}))
        .padding({0, AlertMargin, AlertMargin, AlertMargin})
        .frame({.width = AlertWidth});
}

} // namespace

std::optional<Error> Updates::start(const std::weak_ptr<StandardUserDriverDelegate>& delegate) {
    switch (supply_.framework) {
    case UpdateFramework::missing:
        return Error{std::string(MissingUpdateFramework)};
    case UpdateFramework::broken:
        return Error{std::string(StartFailure)};
    case UpdateFramework::working:
        break;
    }
    delegate_ = delegate;
    isStarted_ = true;
    return std::nullopt;
}

void Updates::checkForUser() { check(true); }

void Updates::checkAsScheduled() { check(false); }

// What is shown already comes forward instead, as a check that goes on and a scheduled update do.
void Updates::check(bool isByUser) {
    if (!isStarted_ || stage_ == Stage::alert || stage_ == Stage::checking) {
        return;
    }
    if (stage_ == Stage::update) {
        if (isByUser) {
            announce();
            windows_.makeKeyAndOrderFront(window_);
        }
        return;
    }
    stage_ = Stage::checking;
    ++sessionNumber_;
    if (isByUser) {
        const ui::View cancel = ui::Button("Cancel", [this] { dismiss(); });
        show("Updating Kestrune", supply_.windowClass,
             page(bundle_, "Checking for updates…", "", {ui::Spacer(), cancel}), true);
    }
    mainThread_.enqueue(
        [this, isByUser, number = sessionNumber_] {
            if (stage_ == Stage::checking && number == sessionNumber_) {
                finishCheck(isByUser);
            }
        },
        CheckDuration);
}

void Updates::finishCheck(bool isByUser) {
    hide();
    const bool hasAddress = bundle_.infoString("SUFeedURL").has_value();
    const UpdateFeed feed = hasAddress ? supply_.feed : UpdateFeed::unreachable;
    if (feed == UpdateFeed::newVersion) {
        stage_ = Stage::update;
        announce();
        showUpdate(isByUser);
    } else if (isByUser) {
        stage_ = Stage::alert;
        showAlert(feed);
    } else {
        stage_ = Stage::idle;
    }
}

void Updates::announce() {
    tell("standardUserDriverWillHandleShowingUpdate:forUpdate:state:",
         &StandardUserDriverDelegate::standardUserDriverWillHandleShowingUpdate);
}

// Who did not ask for it is not interrupted. How an update is installed is not simulated.
void Updates::showUpdate(bool isByUser) {
    std::vector<ui::View> buttons;
    buttons.push_back(ui::Button("Skip This Version", [this] { dismiss(); }));
    buttons.push_back(ui::Spacer());
    buttons.push_back(ui::Button("Remind Me Later", [this] {
                          dismiss();
                      }).keyboardShortcut(ui::KeyboardShortcut::cancelAction));
    buttons.push_back(ui::Button("Install Update", [this] {
                          dismiss();
                      }).keyboardShortcut(ui::KeyboardShortcut::defaultAction));
    show("Software Update", supply_.windowClass,
         page(bundle_, "A new version of Kestrune is available!", "Would you like to download it now?",
              std::move(buttons)),
         isByUser);
}

// Modal: until it is closed the main queue is not served, as it is from there that the alert was shown.
void Updates::showAlert(UpdateFeed feed) {
    tell("standardUserDriverWillShowModalAlert",
         &StandardUserDriverDelegate::standardUserDriverWillShowModalAlert);
    const ui::View ok =
        ui::Button("OK", [this] { dismiss(); }).keyboardShortcut(ui::KeyboardShortcut::defaultAction);
    show("", AlertClass,
         feed == UpdateFeed::nothingNew
             ? alertPage(bundle_, "You’re up to date!", "Kestrune is the newest version available.", ok)
             : alertPage(bundle_, "Update Error!", "An error occurred in retrieving update information.", ok),
         true);
    mainThread_.beginModalAlert();
}

void Updates::dismiss() {
    if (stage_ == Stage::idle) {
        return;
    }
    const bool wasAlert = std::exchange(stage_, Stage::idle) == Stage::alert;
    hide();
    if (wasAlert) {
        mainThread_.endModalAlert();
        tell("standardUserDriverDidShowModalAlert",
             &StandardUserDriverDelegate::standardUserDriverDidShowModalAlert);
    }
    tell("standardUserDriverWillFinishUpdateSession",
         &StandardUserDriverDelegate::standardUserDriverWillFinishUpdateSession);
}

void Updates::show(std::string_view title, std::string_view className, const ui::View& content, bool asKey) {
    window_ = std::make_shared<Window::State>();
    window_->className = className;
    window_->title = title;
    window_->styleMask = WindowStyleMask::titled;
    window_->isReleasedWhenClosed = false;
    window_->hidesOnDeactivate = supply_.windowsHide && className != AlertClass;
    window_->content = HostedView::make({[content] { return content; }, nullptr});
    window_->content->enter(window_);
    windows_.add(window_);
    windows_.center(*window_);
    if (asKey) {
        windows_.makeKeyAndOrderFront(window_);
    } else {
        windows_.orderFront(window_);
    }
}

void Updates::hide() {
    if (window_) {
        windows_.orderOut(window_);
        window_.reset();
    }
}

void Updates::tell(std::string_view selector, void (StandardUserDriverDelegate::*method)()) {
    if (const auto delegate = delegate_.lock()) {
        journal_.record("-[", delegate->className(), " ", selector, "]");
        (delegate.get()->*method)();
    }
}

void Updates::clear() {
    stage_ = Stage::idle;
    isStarted_ = false;
    delegate_.reset();
    window_.reset();
}

} // namespace kestrune::sim
