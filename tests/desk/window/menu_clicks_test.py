#!/usr/bin/env python3
"""The application's menu and the permission's dialog and pane, used with a real mouse and keyboard.

Usage: menu_clicks_test.py DESK PLACES
"""

import os
import plistlib
import sys
import time
import unittest

from live_window import WindowTest, contrast, pixels, places, skip_without_programs, wait_for

FIRST_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000001"
SECOND_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000002"

BUILT_IN = "Built-in Display  (1512×982)  (Main)"
DISPLAY_2 = "Display 2  (1920×1080)"

# Where nothing is that a pointer could be over, in the window's header.
ASIDE = (800, 20)

# The application looks for the permission once a second; the rest is for a machine that is busy.
SOON = 10


class MenuTest(WindowTest):
    def setUp(self):
        super().setUp()
        self.defaults = self.folder / "defaults.plist"
        self.options = ["--defaults", self.defaults]
        self.photograph = self.folder / "screen.png"

    def open(self, *options):
        desk = super().open(*self.options, *options)
        desk.move([ASIDE])
        return desk

    def places(self, *options):
        return places(PLACES, *self.options, *options)

    def stored(self, key):
        return plistlib.loads(self.defaults.read_bytes()).get(key) if self.defaults.exists() else None

    def expect_stored(self, key, value):
        wait_for(lambda: self.stored(key) == value, f"{key} = {value}, stored is {self.stored(key)}")

    def look(self, desk, area):
        desk.photograph(self.photograph)
        return pixels(self.photograph, area)

    def expect_seen(self, desk, area, before, is_the_same):
        """Waits until an area looks as it did before, or else."""
        what = "the area to look as before" if is_the_same else "the area to change"
        wait_for(lambda: (self.look(desk, area) == before) == is_the_same, what)

    def choose(self, desk, title):
        """Clicks the icon and then the row."""
        where = self.places()
        desk.click(where["icon 1"].middle)
        desk.click(where[f"menu: {title}"].middle)

    def open_for_the_first_time(self):
        """The menu that opens first is still the one from before the launch was over."""
        desk = self.open()
        desk.expect("Guard on: only Built-in Display may have the Dock")
        desk.click(self.places()["icon 1"].middle)
        desk.key("Escape")
        return desk


class Clicks(MenuTest):
    def test_choices_are_stored_and_kept(self):
        desk = self.open_for_the_first_time()
        self.expect_stored("hasCompletedOnboarding", True)
        self.choose(desk, DISPLAY_2)
        self.expect_stored("pinnedScreenUUID", SECOND_UUID)
        desk.expect("Display 2 is pinned: push into its bottom edge, and the Dock comes")
        self.choose(desk, "Disable")
        self.expect_stored("isEnabled", False)
        desk.expect("Guard off")
        self.choose(desk, "Enable")
        self.expect_stored("isEnabled", True)
        desk.expect("Guard on: only Display 2 may have the Dock")
        desk.quit()

        again = self.open()
        again.expect("Guard on: only Display 2 may have the Dock")
        self.expect_mark(again, DISPLAY_2, BUILT_IN)
        self.assertEqual(again.quit()["dockDisplay"], 2)
        self.assertEqual(self.stored("pinnedScreenUUID"), SECOND_UUID)

    def expect_mark(self, desk, marked, unmarked):
        """Looks for the check mark in the open menu."""
        where = self.places()
        quit_row = where["first menu: Quit"]
        closed = self.look(desk, quit_row)
        desk.click(where["icon 1"].middle)
        desk.move([ASIDE])
        self.expect_seen(desk, quit_row, closed, False)
        self.assertGreater(contrast(self.photograph, where[f"first menu mark: {marked}"]), 0.05)
        self.assertLess(contrast(self.photograph, where[f"first menu mark: {unmarked}"]), 0.02)
        desk.key("Escape")

    def test_a_drag_chooses_too(self):
        desk = self.open_for_the_first_time()
        where = self.places()
        desk.drag(where["icon 2"].middle, where["icon 1"].middle)
        desk.key("Escape")
        desk.drag(where["icon 1"].middle, where[f"menu: {DISPLAY_2}"].middle)
        self.expect_stored("pinnedScreenUUID", SECOND_UUID)
        desk.quit()

    def test_escape_and_clicks_outside_close_the_menu_only(self):
        desk = self.open_for_the_first_time()
        where = self.places()
        quit_row = where["menu: Quit"]
        desk.move([ASIDE])
        closed = self.look(desk, quit_row)
        closings = [
            lambda: desk.key("Escape"),
            lambda: desk.click(where["display 1"].middle),
            lambda: desk.click(ASIDE),
            lambda: desk.click(where["icon 1"].middle),
        ]
        for close in closings:
            desk.click(where["icon 1"].middle)
            desk.move([ASIDE])
            self.expect_seen(desk, quit_row, closed, False)
            close()
            desk.move([ASIDE])
            self.expect_seen(desk, quit_row, closed, True)
        desk.key("Escape", "Escape")
        self.assertIsNone(self.stored("pinnedScreenUUID"))
        self.assertEqual(desk.quit()["violations"], 0)

    def test_what_cannot_be_chosen_leaves_the_menu_open(self):
        desk = self.open_for_the_first_time()
        where = self.places()
        desk.click(where["icon 1"].middle)
        desk.click(where["menu: Pin Dock to:"].middle)
        desk.click(where["menu: separator"].middle)
        desk.click(where["menu: Disable"].middle)
        self.expect_stored("isEnabled", False)
        desk.quit()


class Keys(MenuTest):
    def test_the_menu_is_used_without_a_mouse(self):
        desk = self.open_for_the_first_time()
        desk.key("m", "Down", "Return")
        self.expect_stored("pinnedScreenUUID", SECOND_UUID)
        desk.expect("Display 2 is pinned: push")
        desk.key("m", "Up", "Return")
        self.expect_stored("pinnedScreenUUID", FIRST_UUID)
        desk.key("m", "Down", "Down", "space")
        self.expect_stored("isEnabled", False)
        desk.key("m", "Down", "Down", "KP_Enter")
        self.expect_stored("isEnabled", True)
        desk.quit()

    def test_the_application_quits_while_its_menu_is_open(self):
        desk = self.open_for_the_first_time()
        desk.key("ctrl+q")
        desk.key("m", "ctrl+shift+q", "ctrl+q")
        desk.expect("Kestrune has quit: the Dock goes wherever the pointer pushes it")
        desk.press("m", "Kestrune does not run")
        desk.press("l", "Guard on: only Built-in Display may have the Dock")
        desk.quit()


class Permission(MenuTest):
    def setUp(self):
        super().setUp()
        self.options += ["--permission", "missing"]

    def test_the_guard_starts_soon_after_it_was_granted(self):
        desk = self.open()
        desk.expect("Kestrune has started and waits for the Accessibility permission")
        desk.press("a", "Kestrune asks for the Accessibility permission")
        where = self.places()
        desk.click(where["open system settings"].middle)
        desk.click(where["switch"].middle)
        granted = time.monotonic()
        desk.expect("Guard on: only Built-in Display may have the Dock")
        self.assertLess(time.monotonic() - granted, SOON)
        desk.click(where["close"].middle)
        desk.push_until(where["display 2"], "Held at 977 on Display 2")
        desk.quit()

    def test_the_dialog_can_be_denied_by_mouse_and_by_key(self):
        desk = self.open()
        where = self.places()
        deny = where["deny"]
        plain = self.look(desk, deny)
        for close in (lambda: desk.click(deny.middle), lambda: desk.key("Return")):
            desk.press("a", "Kestrune asks for the Accessibility permission")
            desk.move([ASIDE])
            self.expect_seen(desk, deny, plain, False)
            close()
            desk.move([ASIDE])
            self.expect_seen(desk, deny, plain, True)
        desk.quit()

    def test_the_row_is_removed(self):
        desk = self.open()
        desk.press("a", "Kestrune asks for the Accessibility permission")
        where = self.places()
        desk.click(where["deny"].middle)
        desk.click(where["row"].middle)
        desk.click(where["remove"].middle)
        desk.expect("Kestrune is no longer in the Accessibility list")
        desk.quit()

    def test_the_menu_offers_no_choice_before(self):
        desk = self.open()
        where = self.places()
        desk.move([ASIDE])
        wait_for(lambda: self.shows_wizard(desk, where), "the wizard")
        desk.click(where["icon 1"].middle)
        desk.click(where[f"first menu: {DISPLAY_2}"].middle)
        desk.click(where["first menu: Disable"].middle)
        desk.expect("“Disable” brings “Welcome to Kestrune” to the front")
        self.assertIsNone(self.stored("pinnedScreenUUID"))
        self.assertIsNone(self.stored("isEnabled"))
        desk.press("2", "Kestrune's menu does not offer that before its setup is complete")
        desk.quit()

    def shows_wizard(self, desk, where):
        """Its button differs more from pixel to pixel than the wallpaper does."""
        desk.photograph(self.photograph)
        return contrast(self.photograph, where["wizard: Request permission"]) > 0.1


if __name__ == "__main__":
    DESK, PLACES = (os.path.abspath(path) for path in sys.argv[1:3])
    del sys.argv[1:3]
    skip_without_programs()
    WindowTest.program = DESK
    unittest.main(verbosity=2)
