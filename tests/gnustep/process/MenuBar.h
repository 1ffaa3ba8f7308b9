// A menu bar on the X screen, in which a real pointer finds the application's status item.
#pragma once

namespace kestrune::gnustep {

// With the first status item at its trailing end; once, after the launch. From then on the standard output
// tells what a hand at the mouse has to know, in lines of words with tabs between:
//   button PLACE                of the status item
//   row PLACE TITLE FLAGS       of the menu that opens, from the top
//   open                        the menu is there and its rows are told
//   highlighted TITLE           the mouse has come to that row
//   guarded NAMES               the menu has closed and what was chosen is done; see guardedDisplays
// A PLACE is the number of an X window and an area of the X screen: x, y, width and height in pixels from the
// top left. FLAGS are `separator` or none, one or both of `marked` and `disabled`.
void showMenuBar();

} // namespace kestrune::gnustep
