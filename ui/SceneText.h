// A scene as indented text, for tests and for people.
#pragma once

#include "ui/Scene.h"

#include <string>

namespace kestrune::ui {

// A line "scene WxH" and under it one for each element: kind, frame as "x,y WxH", what it shows and how; the
// drawings of a button's body are indented under it. Ends with a newline.
//
//     scene 460x57
//       text 24,16 60x13 "STEP 2 OF 2" caption medium secondary
//       button 360,16 76x32 "Finish" custom large defaultAction action 0
//         shape 360,16 76x32 radius 6 continuous accent
//         text 376,24 44x16 "Finish" body semibold white
//         pressed shape 360,16 76x32 radius 6 continuous accent opacity 0.75
//         pressed text 376,24 44x16 "Finish" body semibold white
//
// What is usual is left out: a regular weight, primary colour, leading alignment, medium scale, full opacity,
// a regular control, no role, no shortcut. A part of a text in a weight of its own has it written before it:
// "Click " bold:"OK".
std::string describe(const Scene& scene);

} // namespace kestrune::ui
