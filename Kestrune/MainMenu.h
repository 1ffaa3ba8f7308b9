// The menu of the application itself, which shows while a window has made it a regular application.
#pragma once

#include "platform/Menu.h"
#include "platform/Object.h"

#include <memory>

namespace kestrune {

// `settingsTarget` gets `settingsAction`; every other action goes along the responder chain.
Menu buildMainMenu(const std::weak_ptr<Object>& settingsTarget, const Selector& settingsAction);

} // namespace kestrune
