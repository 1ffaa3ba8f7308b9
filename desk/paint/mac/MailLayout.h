// Where the mail program's window and its parts stand, in global display coordinates, for painting and for
// the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"

#include <optional>

namespace kestrune::desk {

struct MailLayout {
    Rect frame;
    Rect titleBar;
    Rect closeButton;
    Rect recipient; // each a line with its name in front
    Rect subject;
    Rect body;
};

// Absent without a mail.
std::optional<MailLayout> mailLayout(const DeskPicture& picture);

} // namespace kestrune::desk
