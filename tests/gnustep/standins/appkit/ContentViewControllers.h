// The controllers of windows' contents.
#pragma once

namespace kestrune::gnustep {

void installContentViewControllers();

} // namespace kestrune::gnustep
