#!/usr/bin/env python3
"""The application's process on GNUstep with a real pointer: its menu is opened, looked at and clicked.

process_test.py PROGRAM HOME_LIBRARY

With KESTRUNE_MENU_PICTURE in the environment a picture of the open menu is kept under that name, with
KESTRUNE_WINDOW_PICTURES pictures of the wizard's states and of Settings in that folder.
"""

import os
import pathlib
import shutil
import signal
import sys
import tempfile
import unittest

from application_process import Application, Home, row_with
from live_window import SKIPPED, VirtualScreen, contrast, run, wait_for

PROGRAMS = ["Xvfb", "xdotool", "xwininfo", "import", "convert", "defaults"]

ICON = pathlib.Path(__file__).resolve().parents[3] / "Kestrune" / "Resources" / "MenuBarIcon.png"
ICON_SIZE = 20  # points, which are pixels here

ACCENT = [0, 122 / 255, 1]
PRESSED_OPACITY = 0.75  # of the fill of a button

RIGHT_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000002"


def darkest(picture, area):
    """From 0 for black to 1 for white."""
    crop = f"{round(area.width)}x{round(area.height)}+{round(area.left)}+{round(area.top)}"
    command = ["convert", str(picture), "-crop", crop, "+repage", "-colorspace", "Gray"]
    return float(run(*command, "-format", "%[fx:minima]", "info:"))


def color_at(picture, left, top):
    """Red, green and blue, from 0 to 1."""
    pixel = f"p{{{left},{top}}}"
    parts = ",".join(f"%[fx:{pixel}.{part}]" for part in "rgb")
    return [float(part) for part in run("convert", str(picture), "-format", parts, "info:").split(",")]


def has_drawing(picture, area):
    return contrast(picture, area) > 0.05


class ProcessTest(unittest.TestCase):
    """An X server and a home for each test."""

    program = None
    home_library = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.screen = VirtualScreen()
        self.addCleanup(self.screen.stop)
        self.home = Home(self.folder, self.screen)

    def start(self, is_permitted=True):
        application = Application(self.program, self.home, is_permitted)
        self.addCleanup(application.stop)
        return application

    def start_after_setup(self):
        """The menu is made anew when it opens, and the setup was found complete after the first was made."""
        application = self.start()
        self.assertEqual(application.look()[0], "Complete setup…")
        return application

    def take_picture(self):
        """Of the screen; in the place of the one before."""
        picture = self.folder / "screen.png"
        run("import", "-window", "root", str(picture), env=self.screen.environment)
        return picture

    def keep(self, window, name):
        folder = os.environ.get("KESTRUNE_WINDOW_PICTURES")
        if folder:
            area = window.place.area
            picture = self.take_picture()
            crop = f"{round(area.width)}x{round(area.height) + 24}+{round(area.left)}+{round(area.top) - 24}"
            run("convert", str(picture), "-crop", crop, "+repage", str(pathlib.Path(folder) / f"{name}.png"))

    def wait_until_drawn(self, window, control):
        def is_drawn():
            return has_drawing(self.take_picture(), window.controls[control].area)

        wait_for(is_drawn, f"a picture of {control!r}")

    def saved(self, key):
        """The application's default as GNUstep's own tool reads it; None when there is none."""
        # A path with a space would be two libraries in LD_PRELOAD; it is one folder in LD_LIBRARY_PATH.
        folder, library = os.path.split(self.home_library)
        environment = self.home.environment | {"LD_LIBRARY_PATH": folder, "LD_PRELOAD": library}
        text = run("defaults", "read", env=environment)
        lines = (line.split(maxsplit=2) for line in text.splitlines())
        entries = {(domain, name): value for domain, name, value in lines}
        self.assertEqual(entries[("NSGlobalDomain", "GSSuppressAppIcon")], "YES", "another home was read")
        return entries.get((pathlib.Path(self.program).name, key))

    def assert_quits(self, application):
        self.assertEqual(application.quit(), 0)
        self.assertEqual(application.errors.read_text(), "")


class AfterSetup(ProcessTest):
    def test_the_menu_has_its_rows(self):
        application = self.start_after_setup()
        self.assertEqual(
            application.look(),
            [
                "Pin Dock to: (disabled)",
                "✓  Left  (1600×1000)  (Main)",
                "  Right  (1920×1080)",
                "---",
                "Disable",
                "---",
                "Settings…",
                "Quit",
            ],
        )
        self.assert_quits(application)

    def test_a_click_pins_a_display_also_for_the_next_process(self):
        application = self.start_after_setup()
        self.assertIsNone(self.saved("pinnedScreenUUID"))
        self.assertEqual(application.choose("Right"), ["Left"])
        self.assertEqual(self.saved("pinnedScreenUUID"), RIGHT_UUID)
        self.assert_quits(application)

        application = self.start()
        self.assertEqual(
            application.look()[:3],
            ["Pin Dock to: (disabled)", "  Left  (1600×1000)  (Main)", "✓  Right  (1920×1080)"],
        )
        self.assertEqual(application.choose("Settings…"), ["Left"])
        self.assert_quits(application)

    def test_clicks_switch_the_guard_off_and_on(self):
        application = self.start_after_setup()
        self.assertEqual(application.choose("Disable"), [])
        self.assertEqual(self.saved("isEnabled"), "0")
        self.assertEqual(application.choose("Enable"), ["Right"])
        self.assertEqual(self.saved("isEnabled"), "1")
        self.assert_quits(application)


class WithoutPermission(ProcessTest):
    def test_the_menu_begins_with_the_setup(self):
        application = self.start(is_permitted=False)
        self.assertEqual(
            application.look(),
            [
                "Complete setup…",
                "---",
                "Pin Dock to: (disabled)",
                "✓  Left  (1600×1000)  (Main) (disabled)",
                "  Right  (1920×1080) (disabled)",
                "---",
                "Disable",
                "---",
                "Settings…",
                "Quit",
            ],
        )
        self.assert_quits(application)

    def test_a_click_on_a_display_does_nothing(self):
        application = self.start(is_permitted=False)
        self.assertEqual(application.choose("Right"), [])
        self.assertIsNone(self.saved("pinnedScreenUUID"))
        self.assert_quits(application)


class FirstRun(ProcessTest):
    def background(self, window):
        return color_at(self.take_picture(), *window.place.area.at(0, 0, 4))

    def wait_for_color(self, window, control, expected):
        """Of the fill, in the room beside the label."""
        left, middle = window.controls[control].area.at(0, 0.5)

        def is_shown():
            color = color_at(self.take_picture(), left + 8, middle)
            return all(abs(part - wanted) < 0.01 for part, wanted in zip(color, expected))

        wait_for(is_shown, f"the colour {expected} of {control!r}")

    def test_a_new_user_goes_through_the_wizard(self):
        application = self.start(is_permitted=False)
        application.choose("Complete setup")

        wizard = application.wait_for_control("Request permission")
        self.assertEqual(wizard.title, "Welcome to Kestrune")
        self.assertEqual(wizard.texts[0], "STEP 2 OF 2")
        self.assertEqual(wizard.texts[-1], "Waiting for permission…")
        self.assertEqual(list(wizard.controls), ["Request permission"])
        self.wait_until_drawn(wizard, "Request permission")
        self.wait_for_color(wizard, "Request permission", ACCENT)
        self.keep(wizard, "1-before-the-request")
        behind = self.background(wizard)
        dimmed = [PRESSED_OPACITY * fill + (1 - PRESSED_OPACITY) * back for fill, back in zip(ACCENT, behind)]

        application.press(wizard, "Request permission")
        self.wait_for_color(wizard, "Request permission", dimmed)
        self.keep(wizard, "2-pressed")
        application.hand("mouseup", 1)
        wizard = application.wait_for_control("Open System Settings")
        self.assertEqual(list(wizard.controls), ["Open System Settings", "Request permission"])
        self.wait_until_drawn(wizard, "Open System Settings")
        self.keep(wizard, "3-after-the-request")

        application.process.send_signal(signal.SIGUSR1)
        wizard = application.wait_for_control("Finish")
        self.assertEqual(wizard.texts[-1], "Permission granted")
        self.assertEqual(list(wizard.controls), ["Finish"])
        self.wait_until_drawn(wizard, "Finish")
        self.keep(wizard, "4-granted")

        application.hand("key", "Return")
        wait_for(lambda: not application.windows(), "the end of the wizard")
        application.open_menu()
        self.assertEqual(application.guarded_after(application.release_beside_menu), ["Right"])
        self.assertEqual(self.saved("hasCompletedOnboarding"), "1")
        self.assert_quits(application)

    def test_a_user_with_the_permission_begins_with_the_introduction(self):
        application = self.start()
        application.choose("Complete setup")
        wizard = application.wait_for_control("Get started")
        self.assertEqual(wizard.texts[0], "Welcome to Kestrune")
        self.wait_until_drawn(wizard, "Get started")
        self.keep(wizard, "0-introduction")

        application.hand("key", "Return")
        wizard = application.wait_for_control("Finish")
        application.press(wizard, "Finish")
        application.hand("mouseup", 1)
        wait_for(lambda: not application.windows(), "the end of the wizard")
        self.assert_quits(application)


class Settings(ProcessTest):
    def open_settings(self, application):
        self.assertEqual(application.choose("Settings…"), ["Right"])
        return application.wait_for_control("Report a Bug…")

    def flip(self, application, window, is_on):
        """Gives the window as it is then."""
        application.click_on(window.switches[0][0])

        def flipped():
            windows = application.windows()
            return windows[0] if windows and windows[0].switches[0][1] == is_on else None

        return wait_for(flipped, f"a switch that is {'on' if is_on else 'off'}")

    def test_a_user_works_with_every_control(self):
        application = self.start_after_setup()
        window = self.open_settings(application)
        self.assertEqual(window.title, "Kestrune Settings")
        self.assertEqual(window.place.area.width, 440)
        self.assertEqual(list(window.controls), ["Check for Updates…", "Report a Bug…"])
        self.assertEqual(
            window.texts, ["Launch at login", "Kestrune 0.1.0 (1)", "© 2026 Kestrune contributors"]
        )
        self.assertEqual(application.told()["policy"][-1], ["0"])
        self.wait_until_drawn(window, "Report a Bug…")
        self.keep(window, "5-settings")

        window = self.flip(application, window, True)
        self.assertEqual(application.told()["login item"], [["1"]])
        application.press_and_release(window, "Report a Bug…")
        (url,) = application.wait_for_line("opened", 1)
        self.assertTrue(url.startswith("mailto:"), url)
        self.assertIn("subject=Kestrune%20bug%20report&body=Describe%20what%20went%20wrong:", url)
        before = len(application.told()["updates"])
        application.press_and_release(window, "Check for Updates…")
        self.assertEqual(application.wait_for_line("updates", before + 1), ["-[SPUUpdater checkForUpdates]"])

        application.click_on(window.close_button)
        wait_for(lambda: not application.windows(), "the end of Settings")
        wait_for(lambda: application.told()["policy"][-1] == ["1"], "an accessory")
        window = self.open_settings(application)
        self.assertTrue(window.switches[0][1])
        self.flip(application, window, False)
        self.assertEqual(application.told()["login item"][-1], ["0"])
        self.assert_quits(application)


class Drawing(ProcessTest):
    def photograph_menu(self, application, rows):
        """The screen, once there is something in every row."""

        def picture_of_titles():
            picture = self.take_picture()
            return picture if all(has_drawing(picture, row.title_area) for row in rows) else None

        return wait_for(picture_of_titles, "the titles of the menu")

    def keep(self, picture, rows):
        name = os.environ.get("KESTRUNE_MENU_PICTURE")
        if name:
            left, _ = rows[0].place.area.at(0, 0)
            _, bottom = rows[-1].place.area.at(0, 1)
            area = f"{1600 - left + 160}x{bottom + 20}+{left - 160}+0"
            run("convert", str(picture), "-crop", area, "+repage", name)

    def difference_to_icon(self, picture, area):
        """Between the middle of the button and the shipped picture on the button's colour; from 0 to 1."""
        left, top = area.at(0.5, 0.5, -ICON_SIZE // 2)
        size = f"{ICON_SIZE}x{ICON_SIZE}"
        shown = ["(", str(picture), "-crop", f"{size}+{left - ICON_SIZE // 2}+{top}", "+repage", ")"]
        corner = f"%[pixel:p{{{round(area.left)},{round(area.top)}}}]"
        color = run("convert", str(picture), "-format", corner, "info:")
        expected = ["(", "-size", size, f"xc:{color}", str(ICON), "-composite", ")"]
        measure = ["-metric", "RMSE", "-compare", "-format", "%[distortion]", "info:"]
        return float(run("convert", *shown, *expected, *measure))

    def test_the_screen_shows_the_icon_and_the_menu(self):
        application = self.start_after_setup()
        rows = application.open_menu()
        picture = self.photograph_menu(application, rows)
        self.keep(picture, rows)
        self.assertLess(self.difference_to_icon(picture, application.button.area), 0.01)
        titled = [row for row in rows if not row.is_separator]
        marked = [row.title for row in titled if has_drawing(picture, row.mark_area)]
        self.assertEqual(marked, ["  Left  (1600×1000)  (Main)"])
        with_key = [row.title for row in titled if has_drawing(picture, row.key_area)]
        self.assertEqual(with_key, ["Settings…", "Quit"])
        grey = [row.title for row in rows if darkest(picture, row.title_area) > 0.1]
        self.assertEqual(grey, ["Pin Dock to:"])
        application.guarded_after(application.release_beside_menu)
        self.assert_quits(application)


if __name__ == "__main__":
    missing = [program for program in PROGRAMS if shutil.which(program) is None]
    if missing:
        print(f"skipped: {', '.join(missing)} not installed")
        sys.exit(SKIPPED)
    ProcessTest.home_library = sys.argv.pop()
    ProcessTest.program = sys.argv.pop()
    unittest.main(verbosity=2)
