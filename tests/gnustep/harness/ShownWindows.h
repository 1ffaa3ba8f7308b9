// The application's windows, under the harness's namespace.
#pragma once

#include "tests/mac/ShownWindows.h"

namespace kestrune::gnustep {

using native::buttonNamed;
using native::click;
using native::clickTitleBar;
using native::describeButton;
using native::describeWindow;
using native::forgetEvents;
using native::hasWindowOnScreenOrInDock;
using native::highlight;
using native::pressKeyInWindow;
using native::viewsIn;
using native::visibleWindows;

} // namespace kestrune::gnustep
