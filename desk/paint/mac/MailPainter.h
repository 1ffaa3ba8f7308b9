// The mail program's window.
#pragma once

#include "desk/paint/desk/DeskTarget.h"
#include "desk/paint/mac/MailLayout.h"
#include "desk/paint/toolkit/Canvas.h"

#include <optional>

namespace kestrune::desk {

// What stands on the window; the panel is not painted with it.
void paintMail(const Canvas& canvas, const MailLayout& layout, const MailPicture& mail,
               const std::optional<DeskTarget>& pressed);

} // namespace kestrune::desk
