#!/usr/bin/env python3
"""The desk in a real window on a virtual X display, with a pointer that moves and keys that are pressed.

Usage: live_desk_test.py DESK
"""

import json
import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAMS = ["Xvfb", "xdotool", "import", "convert", "identify"]
SKIPPED = 77
PATIENCE = 40  # seconds, for whatever is waited for

DISPLAYS = "1512x982+0+0,1920x1080+1512-98"
SECOND_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000002"

# Where these displays stand in the window of 1440 by 900: both bottom edges are at 631.
BUILT_IN = range(60, 630, 10)
DISPLAY_2 = range(650, 1380, 10)
BELOW_THE_EDGE = range(634, 740, 9)
WINDOW = (1440, 900)


def wait_for(condition, what):
    """The first true value that the condition gives; fails when it takes too long."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def run(*command, env=None):
    result = subprocess.run(command, capture_output=True, check=True, timeout=PATIENCE, env=env, text=True)
    return result.stdout


class VirtualScreen:
    """An X server of its own on a free display number."""

    def __init__(self):
        read_end, write_end = os.pipe()
        # A server that resets when its last client leaves would turn away the next one meanwhile.
        options = ["-screen", "0", "1600x1000x24", "-nolisten", "tcp", "-noreset"]
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), *options],
            pass_fds=[write_end],
            stderr=subprocess.DEVNULL,
        )
        os.close(write_end)
        with os.fdopen(read_end) as number:
            display = number.readline().strip()
        if not display:
            raise AssertionError("Xvfb did not start")
        self.environment = {key: value for key, value in os.environ.items() if key != "WAYLAND_DISPLAY"}
        # A virtual screen has no graphics hardware to draw with.
        self.environment |= {
            "DISPLAY": f":{display}",
            "SDL_VIDEODRIVER": "x11",
            "SDL_RENDER_DRIVER": "software",
            "SDL_FRAMEBUFFER_ACCELERATION": "0",
        }

    def stop(self):
        self.server.terminate()
        self.server.wait(PATIENCE)


class Desk:
    """A running desk and the hand at its mouse and keyboard. The window's title tells what happened last."""

    def __init__(self, screen, folder, *options):
        self.environment = screen.environment
        # Where the window will have its header: keys reach it from there, and no edge is near.
        run("xdotool", "mousemove", "800", "100", env=self.environment)
        self.process = subprocess.Popen(
            [DESK, "--report", "json", *map(str, options)],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env=self.environment,
            cwd=folder,
            text=True,
        )
        self.window = wait_for(self.find_window, "the window")
        wait_for(self.title, "the first picture")

    def find_window(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the desk ended: {self.process.communicate()}")
        search = ["xdotool", "search", "--name", "^Kestrune: "]
        found = subprocess.run(search, capture_output=True, check=False, env=self.environment, text=True)
        return found.stdout.split()[0] if found.stdout else None

    def title(self):
        title = run("xdotool", "getwindowname", self.window, env=self.environment)
        return title.strip().removeprefix("Kestrune: ")

    def expect(self, beginning):
        wait_for(lambda: self.title().startswith(beginning), f"{beginning!r}, the title is {self.title()!r}")

    def move(self, places):
        """The X server sends an event for each place."""
        steps = [word for x, y in places for word in ("mousemove", "--window", self.window, str(x), str(y))]
        run("xdotool", *steps, env=self.environment)

    def push_until(self, columns, beginning):
        """Pushes below the edge until the title tells what came of it."""

        def push_and_look():
            self.move((x, y) for y in BELOW_THE_EDGE for x in columns[::12])
            return self.title().startswith(beginning)

        wait_for(push_and_look, repr(beginning))

    def press(self, key, beginning):
        run("xdotool", "key", key, env=self.environment)
        self.expect(beginning)

    def photograph(self, path):
        """The pixels of the window as the X server shows them."""
        run("import", "-window", self.window, str(path), env=self.environment)

    def quit(self):
        run("xdotool", "key", "q", env=self.environment)
        return self.report()

    def report(self):
        output, errors = self.process.communicate(timeout=PATIENCE)
        if self.process.returncode != 0 or errors:
            raise AssertionError(f"exit status {self.process.returncode}: {errors}")
        return json.loads(output)

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.communicate()


def mean_color(picture, width, height, left, top):
    """Red, green and blue from 0 to 1, averaged over an area."""
    area = f"{width}x{height}+{left}+{top}"
    channels = "%[fx:mean.r] %[fx:mean.g] %[fx:mean.b]"
    text = run("convert", str(picture), "-crop", area, "+repage", "-format", channels, "info:")
    return [float(word) for word in text.split()]


class LiveDesk(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.screen = VirtualScreen()
        self.addCleanup(self.screen.stop)

    def open(self, *options):
        desk = Desk(self.screen, self.folder, "--displays", DISPLAYS, *options)
        self.addCleanup(desk.stop)
        return desk

    def expect_desk_on(self, picture):
        """The desk with the guard on and Display 2 guarded, as pixels."""
        self.assertEqual(run("identify", "-format", "%w %h", str(picture)), "1440 900")
        self.assertGreater(int(run("identify", "-format", "%k", str(picture))), 1000)
        sky = mean_color(picture, 300, 40, 250, 300)
        self.assertGreater(sky[2], sky[0] + 0.1, "the first display's sky is blue")
        dusk = mean_color(picture, 300, 40, 1000, 300)
        self.assertGreater(dusk[0], dusk[1] + 0.1, "the second display's sky is red")
        band = mean_color(picture, 700, 3, 660, 620)
        self.assertGreater(band[0], band[2] + 0.3, "the second display's band is orange")
        no_band = mean_color(picture, 160, 3, 60, 620)
        self.assertLess(no_band[0], no_band[2], "the pinned display has no band")

    def test_the_guard_holds_whatever_the_hand_does(self):
        defaults = self.folder / "defaults.plist"
        screenshot = self.folder / "desk.png"
        desk = self.open("--defaults", defaults, "--screenshot", screenshot, "--pin", 1)
        desk.expect("Guard on: only Built-in Display may have the Dock")
        desk.move((x, 450) for x in [*BUILT_IN, *DISPLAY_2])
        desk.move((x, y) for y in BELOW_THE_EDGE for x in DISPLAY_2[::5])
        desk.push_until(DISPLAY_2, "Held at 977 on Display 2")
        desk.photograph(self.folder / "screen.png")
        self.expect_desk_on(self.folder / "screen.png")

        desk.press("g", "Guard off")
        desk.press("g", "Guard on")
        desk.press("2", "Display 2 is pinned")
        desk.push_until(BUILT_IN, "Held at 977 on Built-in Display")
        desk.press("u", "Built-in Display was unplugged; the Dock moved to Display 2")
        desk.press("p", "Built-in Display was plugged in")
        report = desk.quit()

        self.assertGreater(report["events"], 300)
        self.assertGreater(report["changed"], 100)
        self.assertEqual(report["swallowed"], 0)
        self.assertEqual(report["violations"], 0)
        self.assertEqual(report["dockMoves"], 0)
        self.assertEqual(report["dockDisplay"], 2)
        stored = plistlib.loads(defaults.read_bytes())
        self.assertEqual(stored, {"isEnabled": True, "pinnedScreenUUID": SECOND_UUID})
        self.assertEqual(run("identify", "-format", "%m %w %h", str(screenshot)), "PNG 1440 900")
        self.assertGreater(int(run("identify", "-format", "%k", str(screenshot))), 1000)

        again = self.open("--defaults", defaults)
        again.expect("Guard on: only Display 2 may have the Dock")
        self.assertEqual(again.quit()["dockDisplay"], 2)

    def test_the_dock_leaves_without_the_guard(self):
        desk = self.open("--guard", "off")
        desk.push_until(DISPLAY_2, "The Dock moved to Display 2")
        desk.push_until(BUILT_IN, "The Dock moved to Built-in Display")
        report = desk.quit()
        self.assertGreaterEqual(report["dockMoves"], 2)
        self.assertEqual(report["changed"], 0)
        self.assertEqual(report["violations"], 0)

    def test_the_pointer_freezes_without_the_permission(self):
        desk = self.open()
        desk.press("a", "Accessibility permission revoked")
        desk.push_until(DISPLAY_2, "The pointer stood still for a second")
        desk.press("g", "Guard off")
        desk.press("a", "Accessibility permission granted")
        desk.press("g", "Guard on")
        desk.push_until(DISPLAY_2, "Held at 977 on Display 2")
        self.assertEqual(desk.quit()["violations"], 0)

    def test_the_report_comes_when_the_window_is_told_to_close(self):
        desk = self.open()
        desk.move((x, 450) for x in BUILT_IN)
        desk.process.terminate()
        self.assertEqual(desk.report()["violations"], 0)

    def test_a_window_of_another_size_shows_the_whole_desk(self):
        screenshot = self.folder / "desk.png"
        desk = self.open("--dark", "--screenshot", screenshot)
        run("xdotool", "windowsize", "--sync", desk.window, "900", "600", env=desk.environment)
        desk.move([(450, 300)])
        desk.photograph(self.folder / "screen.png")
        desk.press("s", "The picture was saved as")
        self.assertEqual(run("identify", "-format", "%w %h", str(screenshot)), "900 600")
        corner = mean_color(screenshot, 20, 20, 0, 0)
        self.assertLess(max(corner), 0.3, "the window is dark")
        desk.quit()


class NoDisplayServer(unittest.TestCase):
    def test_the_tour_is_played_instead(self):
        displays = ("DISPLAY", "WAYLAND_DISPLAY")
        environment = {key: value for key, value in os.environ.items() if key not in displays}
        environment["SDL_VIDEODRIVER"] = "x11"
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run(
                [DESK], capture_output=True, check=True, timeout=100, env=environment, cwd=folder, text=True
            )
            self.assertEqual(result.stdout.count("\n"), 1, result.stdout)
            self.assertIn("out/tour", result.stdout)
            pictures = list(pathlib.Path(folder, "out", "tour").glob("*.png"))
            self.assertGreater(len(pictures), 8)
            self.assertIn("scene by scene", pathlib.Path(folder, "out", "tour", "report.txt").read_text())


if __name__ == "__main__":
    DESK = os.path.abspath(sys.argv.pop(1))
    MISSING = [program for program in PROGRAMS if shutil.which(program) is None]
    if MISSING:
        print(f"skipped: {', '.join(MISSING)} not installed")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
