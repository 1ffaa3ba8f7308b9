#!/usr/bin/env python3
"""The application's process on GNUstep with a real pointer: its menu is opened, looked at and clicked.

process_test.py PROGRAM HOME_LIBRARY

With KESTRUNE_MENU_PICTURE in the environment a picture of the open menu is kept under that name.
"""

import collections
import dataclasses
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from live_window import PATIENCE, SKIPPED, Area, VirtualScreen, contrast, run, wait_for

PROGRAMS = ["Xvfb", "xdotool", "xwininfo", "import", "convert", "defaults"]

# Without an icon of the application's own, with borders left to a window manager, and with menus that stay
# open when the button of the mouse is released.
SETTINGS = """{
    GSSuppressAppIcon = YES;
    GSX11HandlesWindowDecorations = NO;
    NSMenuInterfaceStyle = NSWindows95InterfaceStyle;
}
"""

ICON = pathlib.Path(__file__).resolve().parents[3] / "Kestrune" / "Resources" / "MenuBarIcon.png"
ICON_SIZE = 20  # points, which are pixels here

RIGHT_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000002"


@dataclasses.dataclass(frozen=True)
class Place:
    """An area of the screen and the X window that shows it."""

    window: str
    area: Area

    @staticmethod
    def of(window, *numbers):
        return Place(window, Area(*map(float, numbers)))


class Row:
    """A row of an open menu, and the parts of it that GNUstep draws."""

    def __init__(self, window, left, top, width, height, title, *flags):
        self.place = Place.of(window, left, top, width, height)
        self.title = title
        self.is_separator = "separator" in flags
        self.is_marked = "marked" in flags
        self.is_enabled = "disabled" not in flags

    def __str__(self):
        if self.is_separator:
            return "---"
        return ("✓" if self.is_marked else "") + self.title + ("" if self.is_enabled else " (disabled)")

    @property
    def mark_area(self):
        return self.part(3, 14)

    @property
    def title_area(self):
        return self.part(16, 60)

    @property
    def key_area(self):
        return self.part(self.place.area.width - 26, 22)

    def part(self, left, width):
        """Without the row's border."""
        area = self.place.area
        return Area(area.left + left, area.top + 3, width, area.height - 6)


def row_with(text, rows):
    found = [row for row in rows if text in row.title]
    if len(found) != 1:
        raise AssertionError(f"{text!r} is not in one of {list(map(str, rows))}")
    return found[0]


def darkest(picture, area):
    """From 0 for black to 1 for white."""
    crop = f"{round(area.width)}x{round(area.height)}+{round(area.left)}+{round(area.top)}"
    command = ["convert", str(picture), "-crop", crop, "+repage", "-colorspace", "Gray"]
    return float(run(*command, "-format", "%[fx:minima]", "info:"))


def has_drawing(picture, area):
    return contrast(picture, area) > 0.05


class Home:
    """A home directory that outlives a process, and the environment in which GNUstep uses it."""

    def __init__(self, folder, screen):
        self.folder = folder
        settings = folder / "GNUstep" / "Defaults" / "NSGlobalDomain.plist"
        settings.parent.mkdir(parents=True)
        settings.write_text(SETTINGS)
        self.environment = screen.environment | {
            "HOME": str(folder),
            "TMPDIR": str(folder),
            "LC_ALL": "C.UTF-8",
            "LANGUAGES": "English",
            "GNUSTEP_STRING_ENCODING": "NSUTF8StringEncoding",
            # Otherwise each process looks into all of ImageMagick's hundred formats.
            "MAGICK_CODER_MODULE_PATH": str(folder),
        }


class Application:
    """A running process and the hand at its mouse."""

    def __init__(self, program, home, is_permitted):
        self.output = home.folder / "output"
        self.errors = home.folder / "errors"
        environment = home.environment | ({"KESTRUNE_PERMITTED": "yes"} if is_permitted else {})
        with self.output.open("wb") as output, self.errors.open("wb") as errors:
            self.process = subprocess.Popen([program], stdout=output, stderr=errors, env=environment)
        self.environment = environment
        self.button = Place.of(*self.wait_for_line("button", 1))

    def told(self):
        """What the process has told so far: by a line's first word, the other words of each such line."""
        lines = collections.defaultdict(list)
        for line in self.output.read_text(encoding="utf-8").split("\n")[:-1]:
            kind, *words = line.split("\t")
            lines[kind].append(words)
        return lines

    def wait_for_line(self, kind, count):
        """The words of the line that makes it so many of the kind."""

        def lines_so_far():
            if self.process.poll() is not None:
                status = self.process.returncode
                raise AssertionError(f"the process ended with {status}: {self.errors.read_text()}")
            lines = self.told()[kind]
            return lines if len(lines) >= count else None

        return wait_for(lines_so_far, f"line {count} that begins with {kind!r}")[count - 1]

    def wait_until_shown(self, place):
        """What is done with the mouse before goes to the screen behind the window."""

        def is_shown():
            return "IsViewable" in run("xwininfo", "-id", place.window, env=self.environment)

        wait_for(is_shown, "a window on the screen")

    def hand(self, *steps):
        run("xdotool", *map(str, steps), env=self.environment)

    def move_to(self, area):
        self.hand("mousemove", *area.middle)

    def click(self):
        self.hand("mousedown", 1, "mouseup", 1)

    def open_menu(self):
        """Clicks the status item. Gives the rows of the menu that is open then."""
        before = self.told()
        self.wait_until_shown(self.button)
        self.move_to(self.button.area)
        self.hand("mousedown", 1)
        self.wait_for_line("open", len(before["open"]) + 1)
        self.hand("mouseup", 1)
        rows = [Row(*words) for words in self.told()["row"][len(before["row"]) :]]
        self.wait_until_shown(rows[0].place)
        return rows

    def click_row(self, row):
        """In the open menu. What GNUstep chooses at the click is the row that it has highlighted before."""
        count = len(self.told()["highlighted"])
        self.move_to(row.place.area)
        self.wait_for_line("highlighted", count + 1)
        latest = self.told()["highlighted"][-1]
        if latest != [row.title]:
            raise AssertionError(f"the mouse is on {row.title!r}, and {latest} is highlighted")
        self.click()

    def click_beside_menu(self):
        left, middle = self.button.area.at(-20, 0.5)
        self.hand("mousemove", left, middle)
        self.click()

    def guarded_after(self, click, *arguments):
        """The displays that are guarded when the click has closed the menu."""
        count = len(self.told()["guarded"])
        click(*arguments)
        return self.wait_for_line("guarded", count + 1)[0].split()

    def choose(self, text):
        """Opens the menu and clicks the row with the text. Gives the displays that are guarded then."""
        return self.guarded_after(self.click_row, row_with(text, self.open_menu()))

    def look(self):
        """Opens the menu and closes it again. Gives the texts of its rows."""
        rows = self.open_menu()
        self.guarded_after(self.click_beside_menu)
        return list(map(str, rows))

    def quit(self):
        """From the menu. Gives the status with which the process ends."""
        self.click_row(row_with("Quit", self.open_menu()))
        return self.process.wait(PATIENCE)

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait(PATIENCE)


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

    def saved(self, key):
        """The application's default as GNUstep's own tool reads it; None when there is none."""
        environment = self.home.environment | {"LD_PRELOAD": self.home_library}
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


class Drawing(ProcessTest):
    def photograph_menu(self, application, rows):
        """The screen, once there is something in every row."""
        picture = self.folder / "screen.png"

        def is_drawn():
            run("import", "-window", "root", str(picture), env=self.screen.environment)
            return all(has_drawing(picture, row.title_area) for row in rows)

        wait_for(is_drawn, "the titles of the menu")
        return picture

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
        application.guarded_after(application.click_beside_menu)
        self.assert_quits(application)


if __name__ == "__main__":
    missing = [program for program in PROGRAMS if shutil.which(program) is None]
    if missing:
        print(f"skipped: {', '.join(missing)} not installed")
        sys.exit(SKIPPED)
    ProcessTest.home_library = sys.argv.pop()
    ProcessTest.program = sys.argv.pop()
    unittest.main(verbosity=2)
