// The application's windows, told to a hand at the mouse and the keyboard.
#pragma once

namespace kestrune::gnustep {

// From now on the standard output tells when a control is highlighted:
//   pressed TITLE
void watchPresses();

// Tells what is on the screen if it is not what was told last:
//   window PLACE TITLE          of its content, the frontmost window first
//   close PLACE                 the close button of the window
//   text TEXT                   in the window
//   control PLACE TITLE         a button in the window
//   switch PLACE on             or off
//   windows COUNT               all windows are told
// A PLACE is as in MenuBar.h.
void watchWindows();

} // namespace kestrune::gnustep
