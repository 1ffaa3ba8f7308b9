// The mail program's window.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskTarget.h"
#include "desk/paint/MailLayout.h"

#include <optional>

namespace kestrune::desk {

// What stands on the window; the panel is not painted with it.
void paintMail(const Canvas& canvas, const MailLayout& layout, const MailPicture& mail,
               const std::optional<DeskTarget>& pressed);

} // namespace kestrune::desk
