// What the platform has not at run time, or has otherwise. The application goes on, as far as it can.
#pragma once

#include "platform/Log.h"

#include <string>

namespace kestrune::mac {

inline constexpr LogFormat MissingClass = LogFormat::of<"There is no class %{public}s at run time">();
inline constexpr LogFormat MissingMethod = LogFormat::of<"There is no method %{public}s at run time">();

// One error in the log for each text. On the main thread.
void logOnce(LogFormat format, const std::string& text);

} // namespace kestrune::mac
