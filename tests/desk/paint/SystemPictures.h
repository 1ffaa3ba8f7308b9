// Pictures with the parts of a Mac's screen that the application lives in, for their tests.
#pragma once

#include "desk/paint/mac/MenuBar.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Text.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace kestrune::desk {

// A PNG file of 40 × 40 pixels for the length of a test: a filled square in the middle of nothing.
class IconFile {
public:
    explicit IconFile(Color color = rgb(0x000000)) {
        const SurfaceHandle surface{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 40, 40)};
        const ContextHandle context{cairo_create(surface.get())};
        cairo_set_source_rgb(context.get(), color.red, color.green, color.blue);
        cairo_rectangle(context.get(), 6, 6, 28, 28);
        cairo_fill(context.get());
        cairo_surface_write_to_png(surface.get(), path_.c_str());
    }

    const std::string& path() const { return path_; }

private:
    TemporaryFolder folder_;
    std::string path_ = folder_.path() / "icon.png";
};

inline StatusItemPicture statusItem(const std::string& path) {
    return {.imagePath = path, .imageSize = {20, 20}, .isTemplate = true, .toolTip = "Kestrune"};
}

// Two displays with a status item that has no image.
inline DeskPicture withStatusItem() {
    DeskPicture picture = twoDisplays();
    picture.statusItems = {
        {.imagePath = std::nullopt, .imageSize = {20, 20}, .isTemplate = true, .toolTip = "Kestrune"}};
    return picture;
}

// The menu hangs from the status item of the second display.
inline DeskPicture withMenu() {
    DeskPicture picture = withStatusItem();
    const auto item = [](const std::string& title) { return MenuRowPicture{.title = title}; };
    MenuPicture menu{.display = 1, .anchor = StatusItemAnchor{0}, .rows = {}};
    menu.rows = {item("Guard Dock"),   {.kind = MenuRowKind::separator},
                 item("Pin Dock to:"), item("  Left"),
                 item("  Right"),      item("Quit")};
    menu.rows[2].enabled = false;
    picture.menu = menu;
    return picture;
}

inline MenuBarLayout menuBarOf(const DeskPicture& picture, std::size_t display) {
    TextPainter measure;
    return menuBarLayout(measure, picture.displays[display].bounds, picture);
}

} // namespace kestrune::desk
