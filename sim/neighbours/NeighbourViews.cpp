#include "sim/neighbours/NeighbourViews.h"

#include "sim/formats/IconSymbol.h"
#include "sim/services/WindowLook.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <utility>

namespace kestrune::sim {

namespace {

constexpr double Everything = std::numeric_limits<double>::infinity();
constexpr double Shade = 0.08; // of the colour of texts
constexpr double WindowPadding = 20;

ui::View clearOr(double opacity) { return ui::RoundedRectangle({.cornerRadius = 5, .opacity = opacity}); }

ui::View separator() { return ui::RoundedRectangle({.fill = ui::Color::separator}).frame({.height = 1}); }

ui::View icon(const ListedApplication& application, double side) {
    return ui::SystemImage(iconSymbol(application.iconPath)).font(ui::Font::system(side));
}

// A button without an edge.
class FlatButtonStyle final : public ui::ButtonStyle {
public:
    FlatButtonStyle(ui::View atRest, ui::View pressed)
        : atRest_(std::move(atRest)), pressed_(std::move(pressed)) {}

    ui::View makeBody(const Configuration& configuration) const override {
        return configuration.isPressed ? pressed_ : atRest_;
    }

private:
    ui::View atRest_;
    ui::View pressed_;
};

ui::View flatButton(const std::string& title, const std::function<void()>& action, const ui::View& atRest,
                    const ui::View& pressed) {
    return ui::Button(title, action).buttonStyle(std::make_shared<FlatButtonStyle>(atRest, pressed));
}

// It is selected by a press anywhere beside its switch.
ui::View rowOf(const PaneRow& row) {
    constexpr double IconSide = 26;
    const ui::View behind = flatButton("Select " + row.application.name, row.select,
                                       clearOr(row.isSelected ? Shade : 0), clearOr(Shade));
    return ui::HStack({.spacing = 10}, icon(row.application, IconSide),
                      ui::Toggle(row.application.name, row.isOn, [flip = row.flip](bool) { flip(); }))
        .background(behind.padding({-4, -6, -4, -6}));
}

// A sign of the bar below a list.
ui::View listSign(const char* name, ui::Color color) {
    return ui::SystemImage(name)
        .font(ui::Font::system(14, ui::FontWeight::medium))
        .foregroundStyle(color)
        .frame({.width = 26, .height = 22});
}

// Nothing can be added; what is selected can be removed.
ui::View listBar(const SettingsPane& pane) {
    const bool canRemove =
        std::any_of(pane.rows.begin(), pane.rows.end(), [](const PaneRow& row) { return row.isSelected; });
    const ui::View minus = listSign("minus", canRemove ? ui::Color::primary : ui::Color::tertiary);
    return ui::HStack({.spacing = 2}, listSign("plus", ui::Color::tertiary),
                      ui::RoundedRectangle({.fill = ui::Color::separator}).frame({.width = 1, .height = 14}),
                      canRemove ? flatButton("Remove", pane.remove, minus, minus.background(clearOr(Shade)))
                                : minus)
        .padding({.leading = -6});
}

// A chapter of System Settings; the one that is shown is selected.
struct SidebarRow {
    const char* name;
    const char* symbol;
    ui::Color tile;
};
constexpr std::array SidebarRows = {
    SidebarRow{"General", "gearshape.fill", ui::Color::secondary},
    SidebarRow{"Appearance", "circle.lefthalf.filled", ui::Color::primary},
    SidebarRow{"Privacy & Security", "hand.raised.fill", ui::Color::accent},
    SidebarRow{"Desktop & Dock", "dock.rectangle", ui::Color::primary},
    SidebarRow{"Displays", "display", ui::Color::accent},
};

ui::View sidebarRow(const SidebarRow& row, bool isSelected) {
    constexpr double TileSide = 20;
    const ui::View tile = ui::SystemImage(row.symbol)
                              .font(ui::Font::system(11))
                              .foregroundStyle(ui::Color::white)
                              .frame({.width = TileSide, .height = TileSide})
                              .background(ui::RoundedRectangle({.cornerRadius = 5, .fill = row.tile}));
    return ui::HStack(
               {.spacing = 7}, tile,
               ui::VerbatimText(row.name).foregroundStyle(isSelected ? ui::Color::white : ui::Color::primary),
               ui::Spacer())
        .padding({4, 6, 4, 6})
        .background(ui::RoundedRectangle(
            {.cornerRadius = 5, .fill = ui::Color::accent, .opacity = isSelected ? 1.0 : 0.0}));
}

ui::View sidebar(const std::string& chapter) {
    std::vector<ui::View> rows;
    rows.reserve(SidebarRows.size());
    for (const SidebarRow& row : SidebarRows) {
        rows.push_back(sidebarRow(row, row.name == chapter));
    }
    return ui::VStack({.spacing = 2}, std::move(rows))
        .padding({4, 8, WindowPadding, 8})
        .frame({.width = SidebarWidth});
}

ui::View mailHeader(const char* name, const std::string& value) {
    return ui::HStack({.alignment = ui::VerticalAlignment::top, .spacing = 6},
                      ui::VerbatimText(name).foregroundStyle(ui::Color::secondary), ui::VerbatimText(value))
        .padding({8, 0, 8, 0});
}

} // namespace

ListedApplication listedApplication(const BundleContents& bundle) { return {"Kestrune", bundle.iconFile()}; }

ui::View permissionDialog(const ListedApplication& application, std::function<void()> openSettings,
                          std::function<void()> deny) {
    constexpr double Width = 452;
    constexpr double IconSide = 64;
    const ui::View texts =
        ui::VStack({.alignment = ui::HorizontalAlignment::leading},
                   ui::VerbatimText("“" + application.name +
                                    "” would like to control this computer using accessibility features.")
                       .font(ui::Font::preferred(ui::TextStyle::headline)),
                   ui::VerbatimText("Grant access to this application in Privacy & Security settings, "
                                    "located in System Settings.")
                       .font(ui::Font::preferred(ui::TextStyle::subheadline)));
    const ui::View buttons =
        ui::HStack({.spacing = 10}, ui::Spacer(), ui::Button("Open System Settings", std::move(openSettings)),
                   ui::Button("Deny", std::move(deny)).keyboardShortcut(ui::KeyboardShortcut::defaultAction));
    return ui::VStack({.spacing = WindowPadding},
                      ui::HStack({.alignment = ui::VerticalAlignment::top, .spacing = 18},
                                 icon(application, IconSide), texts),
                      buttons)
        .padding(WindowPadding)
        .frame({.width = Width});
}

ui::View settingsPane(const SettingsPane& pane) {
    constexpr double Width = 480;
    constexpr double Height = 260;
    std::vector<ui::View> rows{ui::VerbatimText(pane.sentence)};
    for (const PaneRow& row : pane.rows) {
        rows.push_back(rowOf(row));
    }
    if (pane.rows.empty()) {
        rows.push_back(ui::VerbatimText("No Items")
                           .foregroundStyle(ui::Color::secondary)
                           .frame({.maxWidth = Everything}));
    }
    rows.push_back(listBar(pane));
    const ui::View content =
        ui::Form({ui::Section(std::move(rows))})
            .formStyle(ui::FormStyle::grouped)
            .frame({.width = Width,
                    .minHeight = Height,
                    .alignment = {ui::HorizontalAlignment::center, ui::VerticalAlignment::top}})
            .background(flatButton("Select None", pane.deselect, clearOr(0), clearOr(0)));
    return ui::HStack({.alignment = ui::VerticalAlignment::top, .spacing = 0}, sidebar(pane.chapter),
                      content);
}

ui::View mailView(const MailLink& mail) {
    constexpr double Width = 500;
    constexpr double BodyHeight = 220;
    return ui::VStack(
               {.alignment = ui::HorizontalAlignment::leading, .spacing = 0},
               mailHeader("To:", mail.recipient), separator(), mailHeader("Subject:", mail.subject),
               separator(),
               ui::VerbatimText(mail.body)
                   .padding({14, 0, 0, 0})
                   .frame({.minHeight = BodyHeight,
                           .alignment = {ui::HorizontalAlignment::leading, ui::VerticalAlignment::top}}))
        .padding({0, WindowPadding, WindowPadding, WindowPadding})
        .frame({.width = Width});
}

} // namespace kestrune::sim
