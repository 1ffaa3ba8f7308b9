// Where the mail program's window and its parts stand, in window coordinates, for painting and for the
// pointer.
//
// Like menus, windows keep the size in which they can be read, whatever the displays' scale.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

#include <optional>

namespace kestrune::desk {

struct MailLayout {
    Rect frame;
    Rect titleBar;
    Rect closeButton;
    Rect recipient; // each a line with its name in front
    Rect subject;
    Rect body;

    friend bool operator==(const MailLayout&, const MailLayout&) = default;
};

// Absent without a mail.
std::optional<MailLayout> mailLayout(const DeskLayout& layout, const DeskPicture& picture, Size window);

} // namespace kestrune::desk
