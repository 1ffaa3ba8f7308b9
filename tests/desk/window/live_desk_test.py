#!/usr/bin/env python3
"""The desk in a real window on a virtual X display, with a pointer that moves and keys that are pressed.

Usage: live_desk_test.py DESK PLACES
"""

import os
import pathlib
import plistlib
import subprocess
import sys
import tempfile
import unittest

from live_window import WindowTest, mean_color, places, run, skip_without_programs

DISPLAYS = "1512x982+0+0,1920x1080+1512-98"
SECOND_UUID = "37D8832A-2D66-02CA-B9F7-8F3000000002"


class LiveDesk(WindowTest):
    def setUp(self):
        super().setUp()
        self.where = places(PLACES, "--displays", DISPLAYS)
        self.built_in = self.where["display 1"]
        self.display_2 = self.where["display 2"]

    def open(self, *options):
        return super().open("--displays", DISPLAYS, *options)

    def expect_desk_on(self, picture):
        """The desk with the guard on and Display 2 guarded, as pixels."""
        self.assertEqual(run("identify", "-format", "%w %h", str(picture)), "1440 900")
        self.assertGreater(int(run("identify", "-format", "%k", str(picture))), 1000)
        sky = mean_color(picture, 200, 40, *self.built_in.at(0.4, 0.15))
        self.assertGreater(sky[2], sky[0] + 0.1, "the first display's sky is blue")
        dusk = mean_color(picture, 200, 40, *self.display_2.at(0.4, 0.4))
        self.assertGreater(dusk[0], dusk[1] + 0.1, "the second display's sky is red")
        band = mean_color(picture, 200, 1, *self.display_2.at(0.1, 1, -1))
        self.assertGreater(band[0], band[2] + 0.2, "the second display's band is orange")
        no_band = mean_color(picture, 100, 1, *self.built_in.at(0.1, 1, -1))
        self.assertLess(no_band[0], no_band[2], "the pinned display has no band")

    def test_the_guard_holds_whatever_the_hand_does(self):
        defaults = self.folder / "defaults.plist"
        screenshot = self.folder / "desk.png"
        desk = self.open("--defaults", defaults, "--screenshot", screenshot, "--pin", 1)
        desk.expect("Guard on: only Built-in Display may have the Dock")
        desk.move((x, 450) for x in [*self.built_in.columns(10), *self.display_2.columns(10)])
        desk.move((x, y) for y in self.display_2.rows_below() for x in self.display_2.columns(50))
        desk.push_until(self.display_2, "Held at 977 on Display 2")
        desk.photograph(self.folder / "screen.png")
        self.expect_desk_on(self.folder / "screen.png")

        desk.press("g", "Guard off")
        desk.press("g", "Guard on")
        desk.press("2", "Display 2 is pinned")
        desk.push_until(self.built_in, "Held at 977 on Built-in Display")
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
        self.assertEqual(
            stored,
            {
                "SUAutomaticallyUpdate": False,
                "hasCompletedOnboarding": True,
                "isEnabled": True,
                "pinnedScreenUUID": SECOND_UUID,
            },
        )
        self.assertEqual(run("identify", "-format", "%m %w %h", str(screenshot)), "PNG 1440 900")
        self.assertGreater(int(run("identify", "-format", "%k", str(screenshot))), 1000)

        again = self.open("--defaults", defaults)
        again.expect("Guard on: only Display 2 may have the Dock")
        self.assertEqual(again.quit()["dockDisplay"], 2)

    def test_the_dock_leaves_without_the_guard(self):
        desk = self.open("--guard", "off")
        desk.push_until(self.display_2, "The Dock moved to Display 2")
        desk.push_until(self.built_in, "The Dock moved to Built-in Display")
        report = desk.quit()
        self.assertGreaterEqual(report["dockMoves"], 2)
        self.assertEqual(report["changed"], 0)
        self.assertEqual(report["violations"], 0)

    def test_the_pointer_freezes_without_the_permission(self):
        desk = self.open()
        desk.press("a", "The system does not ask")
        switch = self.where["switch"].middle
        desk.click(switch)
        desk.expect("Accessibility permission revoked")
        desk.push_until(self.display_2, "The pointer stood still for a second")
        desk.click(switch)
        desk.expect("Accessibility permission granted: the tap answers again")
        desk.push_until(self.display_2, "Held at 977 on Display 2")
        self.assertEqual(desk.quit()["violations"], 0)

    def test_the_report_comes_when_the_window_is_told_to_close(self):
        desk = self.open()
        desk.move((x, 450) for x in self.built_in.columns(10))
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
    def test_the_gallery_is_drawn_instead(self):
        displays = ("DISPLAY", "WAYLAND_DISPLAY")
        environment = {key: value for key, value in os.environ.items() if key not in displays}
        environment["SDL_VIDEODRIVER"] = "x11"
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run(
                [DESK], capture_output=True, check=True, timeout=150, env=environment, cwd=folder, text=True
            )
            self.assertEqual(result.stdout.count("\n"), 1, result.stdout)
            self.assertIn("out/gallery", result.stdout)
            gallery = pathlib.Path(folder, "out/gallery")
            for name in ("tour", "tour/held", "wizard/waiting", "settings"):
                self.assertTrue((gallery / f"{name}-light.png").is_file(), name)


if __name__ == "__main__":
    DESK, PLACES = (os.path.abspath(path) for path in sys.argv[1:3])
    del sys.argv[1:3]
    skip_without_programs()
    WindowTest.program = DESK
    unittest.main(verbosity=2)
