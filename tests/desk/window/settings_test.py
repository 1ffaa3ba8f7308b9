#!/usr/bin/env python3
"""The Settings window and what it leads to, used with a real mouse and keyboard.

Usage: settings_test.py DESK PLACES
"""

import os
import sys
import unittest

from live_window import WindowTest, pixels, places, skip_without_programs, wait_for

# Where nothing is that a pointer could be over, in the window's header.
ASIDE = (800, 20)

BUILT_IN_WIDTH = 1512  # points

OPENED = "Kestrune opened its window “Kestrune Settings”"
AT_LOGIN = "Kestrune will open when the user logs in"
NOT_AT_LOGIN = "Kestrune will not open when the user logs in"


class Settings(WindowTest):
    def setUp(self):
        super().setUp()
        self.photograph = self.folder / "screen.png"
        self.where = places(PLACES)
        self.toggle = self.where["settings: Launch at login"]
        self.desk = self.open()

    def open_with_keys(self):
        # The menu that opens first is the one that was built before the setup was noted.
        self.desk.key("m", "Escape", "m")
        self.desk.press("ctrl+comma", OPENED)

    def look(self, area):
        self.desk.photograph(self.photograph)
        return pixels(self.photograph, area)

    def test_the_mouse_is_enough(self):
        desk = self.desk
        # The menu that opens first is the one that was built before the setup was noted.
        desk.click(self.where["icon 1"].middle)
        desk.click(self.where["icon 1"].middle)
        desk.click(self.where["icon 1"].middle)
        desk.click(self.where["menu: Settings…"].middle)
        desk.expect(OPENED)
        desk.click(self.where["settings minimize"].middle)
        desk.expect("Kestrune's window “Kestrune Settings” is in the Dock")
        desk.click(self.where["tile"].middle)
        desk.expect("Kestrune's window “Kestrune Settings” is back from the Dock")
        desk.click(self.toggle.middle)
        desk.expect(AT_LOGIN)
        desk.click(self.toggle.middle)
        desk.expect(NOT_AT_LOGIN)
        desk.click(self.where["settings: Check for Updates…"].middle)
        desk.expect("The updater tells that there is nothing new")
        # The alert keeps clicks away from the switch.
        desk.click(self.toggle.middle)
        desk.click(self.where["alert: OK"].middle)
        desk.expect("The alert is closed")
        desk.click(self.where["settings: Report a Bug…"].middle)
        desk.expect("Mail shows the mail that Kestrune composed; nothing is sent")
        desk.click(self.where["mail close"].middle)
        desk.click(self.where["settings close"].middle)
        desk.expect("Kestrune's window “Kestrune Settings” is closed")
        desk.quit()

    def test_the_keyboard_is_enough(self):
        desk = self.desk
        self.open_with_keys()
        desk.key("Tab")
        desk.press("space", AT_LOGIN)
        desk.key("Tab")
        desk.press("space", "The updater tells that there is nothing new")
        desk.press("Return", "The alert is closed")
        desk.key("Tab")
        desk.press("space", "Mail shows the mail that Kestrune composed; nothing is sent")
        desk.key("ctrl+w", "shift+Tab", "shift+Tab")
        desk.press("space", NOT_AT_LOGIN)
        desk.quit()

    def test_the_knob_is_dragged_at_a_hundred_percent(self):
        desk = self.desk
        self.open_with_keys()
        # What is under the pointer stays there.
        desk.move([self.toggle.middle])
        desk.key("z")
        toggle = self.toggle.enlarged(BUILT_IN_WIDTH / self.where["display 1"].width)
        desk.move([ASIDE])
        # The title changes once the picture before it is seen.
        desk.press("f", "The update feed has a new version")
        off = self.look(toggle)
        left, right = toggle.at(0.25, 0.5), toggle.at(0.8, 0.5)
        desk.drag(left, right)
        desk.expect(AT_LOGIN)
        # Not as far as the other side.
        desk.drag(right, (right[0] - 4, right[1]))
        self.assertEqual(desk.title(), AT_LOGIN)
        desk.drag(right, (left[0] - 60, left[1] + 60))
        desk.expect(NOT_AT_LOGIN)
        desk.move([ASIDE])
        wait_for(lambda: self.look(toggle) == off, "the switch at rest")
        desk.key("z")
        desk.click(self.toggle.middle)
        desk.expect(AT_LOGIN)
        desk.quit()


if __name__ == "__main__":
    DESK, PLACES = (os.path.abspath(path) for path in sys.argv[1:3])
    del sys.argv[1:3]
    skip_without_programs()
    WindowTest.program = DESK
    unittest.main(verbosity=2)
