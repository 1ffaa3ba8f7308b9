#include "desk/command/Options.h"

namespace kestrune::desk {

std::string_view helpText() {
    return R"(kestrune-desk: a simulated Mac with several displays, and Kestrune on it

  kestrune-desk                        opens the desk in a window
  kestrune-desk --tour DIR             plays the first-run story and writes a PNG for each scene
  kestrune-desk --wizard DIR           writes a PNG for each state of the first-run wizard, light and dark,
                                       and all.png with all of them
  kestrune-desk --settings DIR         writes a PNG for each state of the Settings window, light and dark,
                                       and all.png with all of them
  kestrune-desk --replay FILE          plays a pointer recording without a window
  kestrune-desk --generate FILE        writes a made-up recording
  kestrune-desk --launch               launches Kestrune without a window and prints every call to the
                                       platform, in order

The desk
  --displays LIST    at most 16 displays as WxH+X+Y or WxH-X-Y, separated by commas, in points, y
                     downwards, decimals allowed; the first is the primary, at +0+0.
                     Usual: 1512x982+0+0,1920x1080+1512-98
  --pin N            the display that keeps the Dock, counted from 1. Usual: 1
  --guard on|off     whether Kestrune guards the Dock. Usual: on
  --margin M         depth of the guarded band in points; 4 when absent or not greater than 0
  --permission P     granted or missing: whether Kestrune has the Accessibility permission when it is
                     launched; with the window and --launch only. Usual: granted
  --defaults FILE    keeps the preferences in a property list; with the window and
                     --launch only
  --dark             paints the desk dark

With --replay, or when the window is closed
  --report json      ends with one JSON object instead of a few lines of text
  --screenshot FILE  writes a PNG of the desk as it is in the end
  --emit FILE        writes index,type,x,y,deliveredX,deliveredY for each event that was delivered;
                     with --replay only

With --generate
  --seed N           the same seed gives the same recording. Usual: 1
  --rows N           how many rows. Usual: 10000
  --size WxH         the recorded display, in pixels. Usual: 1512x982

A recording is a text file with the columns record timestamp,client timestamp,button,state,x,y.
Exit status: 0, or 2 with one line on standard error when the input or an option is not usable.
)";
}

} // namespace kestrune::desk
