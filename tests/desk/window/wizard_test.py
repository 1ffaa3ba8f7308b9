#!/usr/bin/env python3
"""The first-run wizard, used with a real mouse and keyboard.

Usage: wizard_test.py DESK PLACES
"""

import dataclasses
import os
import plistlib
import sys
import unittest

from live_window import WindowTest, contrast, pixels, places, skip_without_programs, wait_for

# Where nothing is that a pointer could be over, in the window's header.
ASIDE = (800, 20)

# A button with its title differs more from pixel to pixel than the wallpaper does.
BUTTON_CONTRAST = 0.1


def moved(area):
    """Where a part is after the window was dragged."""
    return dataclasses.replace(area, left=area.left + 60, top=area.top + 40)


class Wizard(WindowTest):
    def setUp(self):
        super().setUp()
        self.defaults = self.folder / "defaults.plist"
        self.photograph = self.folder / "screen.png"
        options = ["--defaults", self.defaults, "--permission", "missing"]
        self.where = places(PLACES, *options)
        self.desk = self.open(*options)
        self.desk.move([ASIDE])
        wait_for(lambda: self.shows_button(self.where["wizard: Request permission"]), "the wizard")

    def shows_button(self, area):
        self.desk.photograph(self.photograph)
        return contrast(self.photograph, area) > BUTTON_CONTRAST

    def look(self, area):
        self.desk.photograph(self.photograph)
        return pixels(self.photograph, area)

    def stored(self, key):
        return plistlib.loads(self.defaults.read_bytes()).get(key) if self.defaults.exists() else None

    def test_the_first_run_ends_with_a_held_dock(self):
        desk = self.desk
        desk.click(self.where["wizard: Request permission"].middle)
        desk.expect("“Request permission” was pressed in Kestrune's window")
        desk.click(self.where["open system settings"].middle)
        desk.click(self.where["switch"].middle)
        desk.expect("Guard on: only Built-in Display may have the Dock")
        desk.click(self.where["close"].middle)
        self.assertIsNone(self.stored("hasCompletedOnboarding"))
        desk.key("Return")
        desk.expect("Kestrune's window “Welcome to Kestrune” is closed")
        wait_for(lambda: self.stored("hasCompletedOnboarding") is True, "the completed setup")
        desk.push_until(self.where["display 2"], "Held at 977 on Display 2")
        self.assertEqual(desk.quit()["violations"], 0)

    def test_the_keyboard_is_enough_to_ask(self):
        self.desk.key("Return", "Escape")
        self.desk.key("Tab", "space")
        self.desk.expect("“Request permission” was pressed in Kestrune's window")
        self.desk.quit()

    def test_a_press_that_is_drawn_off_does_nothing(self):
        button = self.where["wizard: Request permission"]
        before = self.look(button)
        title = self.desk.title()
        self.desk.drag(button.middle, self.where["wizard title"].middle)
        self.desk.move([ASIDE])
        wait_for(lambda: self.look(button) == before, "the button at rest")
        self.assertEqual(self.desk.title(), title)
        self.desk.quit()

    def test_the_window_is_dragged_and_closed(self):
        button = self.where["wizard: Request permission"]
        before = self.look(button)
        self.desk.drag(self.where["wizard title"].middle, moved(self.where["wizard title"]).middle)
        self.desk.move([ASIDE])
        wait_for(lambda: self.look(moved(button)) == before, "the window to be where it was dragged to")
        self.desk.click(moved(self.where["wizard close"]).middle)
        self.desk.expect("Kestrune's window “Welcome to Kestrune” is closed")
        self.assertIsNone(self.stored("hasCompletedOnboarding"))
        self.desk.quit()


if __name__ == "__main__":
    DESK, PLACES = (os.path.abspath(path) for path in sys.argv[1:3])
    del sys.argv[1:3]
    skip_without_programs()
    WindowTest.program = DESK
    unittest.main(verbosity=2)
