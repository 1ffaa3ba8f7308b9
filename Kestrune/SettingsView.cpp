#include "Kestrune/SettingsView.h"

#include "Kestrune/AppVersion.h"
#include "platform/Bundle.h"

#include <limits>
#include <optional>
#include <string>
#include <utility>
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
    std::vector<View> startUp;
    startUp.push_back(ui::Toggle("Launch at login", model->launchAtLogin,
                                 [shown = model](bool isOn) { shown->launchAtLogin = isOn; }));
    std::vector<View> maintenance;
    maintenance.push_back(Button("Check for Updates…", [shown = model] { shown->checkForUpdates(); }));
    maintenance.push_back(Button("Report a Bug…", [shown = model] { shown->reportBug(); }));
    std::vector<View> sections;
    sections.push_back(ui::Section(std::move(startUp)));
    sections.push_back(ui::Section(std::move(maintenance)));
    const View form = ui::Form(std::move(sections)).formStyle(ui::FormStyle::grouped);
    return ui::VStack({.spacing = 0}, form, SettingsFooter().body())
        .fixedSize(false, true)
        .frame({.width = FormWidth});
}

View SettingsFooter::body() const {
    std::vector<View> lines;
    lines.push_back(ui::Text("Kestrune %@", std::vector<std::string>(1, appVersionString()))
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
