#include "Kestrune/SettingsView.h"

#include "Kestrune/AppVersion.h"
#include "platform/Bundle.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace kestrune {

namespace {

using ui::Button;
using ui::Color;
using ui::Font;
using ui::TextStyle;
using ui::View;

constexpr double FormWidth = 440; // points
constexpr double Unbounded = std::numeric_limits<double>::infinity();

} // namespace

View SettingsView::body() const {
    const View launch = ui::Toggle("Launch at login", model->launchAtLogin,
                                   [model = model](bool isOn) { model->launchAtLogin = isOn; });
    const View update = Button("Check for Updates…", [model = model] { model->checkForUpdates(); });
    const View report = Button("Report a Bug…", [model = model] { model->reportBug(); });
    const View form =
        ui::Form({ui::Section({launch}), ui::Section({update, report})}).formStyle(ui::FormStyle::grouped);
    return ui::VStack({.spacing = 0}, form, SettingsFooter().body())
        .frame({.width = FormWidth})
        .fixedSize(false, true);
}

View SettingsFooter::body() const {
    std::vector<View> lines;
    lines.push_back(ui::Text("Kestrune %@", {appVersionString()})
                        .font(Font::preferred(TextStyle::callout))
                        .foregroundStyle(Color::secondary));
    const std::optional<std::string> copyright =
        Bundle::mainBundle().infoDictionaryString("NSHumanReadableCopyright");
    if (copyright) {
        lines.push_back(ui::VerbatimText(*copyright)
                            .font(Font::preferred(TextStyle::caption))
                            .foregroundStyle(Color::tertiary));
    }
    return ui::VStack({.spacing = 2}, std::move(lines))
        .frame({.maxWidth = Unbounded})
        .multilineTextAlignment(ui::TextAlignment::center)
        .padding({.leading = 20, .bottom = 16, .trailing = 20});
}

} // namespace kestrune
