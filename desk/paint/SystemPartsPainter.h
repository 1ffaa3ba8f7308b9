// Menu, tool tip, permission dialog, System Settings, mail and the application's windows, in front of the
// displays.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/AlertLayout.h"
#include "desk/paint/CachedSprite.h"
#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/ImageStore.h"
#include "desk/paint/MailLayout.h"
#include "desk/paint/MenuLayout.h"
#include "desk/paint/PanelPainter.h"
#include "desk/paint/SettingsPaneLayout.h"
#include "desk/paint/TextMeasure.h"
#include "desk/paint/WindowLayout.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>

namespace kestrune::desk {

// Keeps each part as it was painted until the part itself changes, so that a pointer that moves over a menu
// or a window costs no more than elsewhere.
class SystemPartsPainter {
public:
    void paint(const Canvas& canvas, TextMeasure& measure, ImageStore& images, const DeskLayout& layout,
               const DeskPicture& picture, Size window);

private:
    struct Panel {
        Rect frame;
        PanelStyle style;
        bool dark = false;

        friend bool operator==(const Panel&, const Panel&) = default;
    };

    template <typename Picture, typename Layout>
    struct Content {
        Picture picture;
        Layout layout;
        std::optional<DeskTarget> pressed; // if that is within the part
        bool dark = false;

        friend bool operator==(const Content&, const Content&) = default;
    };

    // The panel's shadow takes longest to paint, and changes least: a highlight that moves along a menu
    // leaves the panel as it is.
    template <typename Picture, typename Layout>
    struct Part {
        CachedSprite<Panel> panel;
        CachedSprite<Content<Picture, Layout>> content;

        void paint(const Canvas& canvas, const Panel& shown, Content<Picture, Layout> shownContent,
                   const std::function<void(const Canvas&)>& paintContent);
        void forget();
    };

    void paintWindows(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture, Size window,
                      WindowDepth depth);
    void forgetClosedWindows(const DeskPicture& picture);
    void paintPane(const Canvas& canvas, ImageStore& images, const DeskLayout& layout,
                   const DeskPicture& picture, Size window);
    void paintOpenMail(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture,
                       Size window);
    void paintDialog(const Canvas& canvas, TextMeasure& measure, ImageStore& images, const DeskLayout& layout,
                     const DeskPicture& picture, Size window);
    void paintTip(const Canvas& canvas, TextMeasure& measure, const DeskLayout& layout,
                  const DeskPicture& picture, Size window);
    void paintOpenMenu(const Canvas& canvas, TextMeasure& measure, const DeskLayout& layout,
                       const DeskPicture& picture, Size window);

    Part<SettingsPanePicture, SettingsPaneLayout> pane_;
    Part<MailPicture, MailLayout> mail_;
    Part<PermissionDialogPicture, AlertLayout> dialog_;
    Part<ToolTipPicture, Rect> toolTip_;
    Part<MenuPicture, MenuLayout> menu_;
    std::map<std::size_t, Part<WindowPicture, WindowLayout>> windows_; // by number
};

} // namespace kestrune::desk
