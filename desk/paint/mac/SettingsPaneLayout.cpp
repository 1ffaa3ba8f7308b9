#include "desk/paint/mac/SettingsPaneLayout.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double Width = 440;
constexpr double TitleBarHeight = 44;
constexpr double Padding = 20; // around the box
constexpr double SentenceHeight = 40;
constexpr double RowHeight = 40;
constexpr std::size_t FewestRows = 3; // a shorter list leaves room for as many
constexpr double ButtonBarHeight = 30;
constexpr double RowPadding = 10;
constexpr double IconSide = 26;
constexpr Size ListButtonSize{26, 22};

// As parts of the display's height.
constexpr double HeightOnDisplay = 0.54; // of the pane's centre
constexpr double HighestPane = 0.88;

constexpr double HeightWithoutList = TitleBarHeight + SentenceHeight + ButtonBarHeight + Padding;

// How many rows the list is high.
std::size_t listRows(std::size_t rows, const Rect& display) {
    const double room = std::floor((display.height() * HighestPane - HeightWithoutList) / RowHeight);
    const std::size_t most = room >= 1 ? static_cast<std::size_t>(std::min(room, 1000.0)) : 1;
    return std::min(std::max(rows, FewestRows), most);
}

PaneRowPlace placeRow(const Rect& list, std::size_t index) {
    const double top = list.minY() + static_cast<double>(index) * RowHeight;
    return {{list.minX(), top, list.width(), RowHeight},
            {list.minX() + RowPadding, top + (RowHeight - IconSide) / 2, IconSide, IconSide},
            {list.maxX() - RowPadding - SwitchSize.width, top + (RowHeight - SwitchSize.height) / 2,
             SwitchSize.width, SwitchSize.height}};
}

} // namespace

std::optional<SettingsPaneLayout> settingsPaneLayout(const DeskPicture& picture) {
    if (!picture.settingsPane || picture.settingsPane->display >= picture.displays.size()) {
        return std::nullopt;
    }
    const Rect& display = picture.displays[picture.settingsPane->display].bounds;
    const std::size_t rowsInPicture = picture.settingsPane->rows.size();
    const std::size_t rows = listRows(rowsInPicture, display);
    const double listHeight = static_cast<double>(rows) * RowHeight;
    const double height = HeightWithoutList + listHeight;

    SettingsPaneLayout result;
    result.frame = {std::round(display.minX() + (display.width() - Width) / 2),
                    std::round(display.minY() + display.height() * HeightOnDisplay - height / 2), Width,
                    height};
    const Rect& frame = result.frame;
    result.titleBar = {frame.minX(), frame.minY(), Width, TitleBarHeight};
    result.closeButton = {frame.minX() + Padding, frame.minY() + (TitleBarHeight - WindowButtonSide) / 2,
                          WindowButtonSide, WindowButtonSide};
    result.box = {frame.minX() + Padding, result.titleBar.maxY(), Width - 2 * Padding,
                  height - TitleBarHeight - Padding};
    const Rect& box = result.box;
    result.sentence = {box.minX() + RowPadding, box.minY(), box.width() - 2 * RowPadding, SentenceHeight};
    result.list = {box.minX(), result.sentence.maxY(), box.width(), listHeight};
    for (std::size_t index = 0; index < std::min(rows, rowsInPicture); ++index) {
        result.rows.push_back(placeRow(result.list, index));
    }
    const double buttonTop = result.list.maxY() + (ButtonBarHeight - ListButtonSize.height) / 2;
    result.addButton = {box.minX() + 4, buttonTop, ListButtonSize.width, ListButtonSize.height};
    result.removeButton = {result.addButton.maxX() + 3, buttonTop, ListButtonSize.width,
                           ListButtonSize.height};
    return result;
}

bool canRemove(const SettingsPanePicture& pane) {
    return std::any_of(pane.rows.begin(), pane.rows.end(),
                       [](const PaneRowPicture& row) { return row.selected; });
}

} // namespace kestrune::desk
