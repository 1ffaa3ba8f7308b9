// A live desk as the command line asks for it.
#pragma once

#include "desk/command/Options.h"
#include "desk/live/world/LiveDesk.h"
#include "replay/recording/InputError.h"

#include <memory>
#include <variant>

namespace kestrune::desk {

// With the preferences of the options' file, which the choices among the options replace. The error says why
// the file could not be read, in which case it is left as it is, or not be saved.
std::variant<std::unique_ptr<LiveDesk>, replay::InputError> openDesk(const Options& options);

} // namespace kestrune::desk
