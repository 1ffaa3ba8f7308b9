"""The program that draws the application's windows on a Mac, on GNUstep in the place of AppKit.

GNUstep's windows have no appearance, so light and dark are the same here.
"""

import os
import pathlib
import struct
import subprocess
import tempfile
import unittest

PROGRAM = os.environ.get("KESTRUNE_PICTURES", "")
DESK = os.environ.get("KESTRUNE_DESK", "")
DISPLAY_FILE = os.environ.get("KESTRUNE_DISPLAY_FILE", "")
SECONDS = 30
STATES = {"wizard": ("intro", "permission", "waiting", "granted"), "settings": ("in-front", "on")}
APPEARANCES = ("light", "dark")
WIDTHS = {"wizard": 460, "settings": 420}  # of the content, in points
LOWEST = 200  # points


def size_of(picture):
    """In pixels."""
    signature, width, height = struct.unpack(">16sII", picture[:24])
    if not signature.startswith(b"\x89PNG\r\n\x1a\n"):
        raise ValueError("no PNG file")
    return width, height


def relative_names(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*.png")}


class Pictures(unittest.TestCase):
    def setUp(self):
        display = pathlib.Path(DISPLAY_FILE).read_text(encoding="utf-8").split()[0]
        self.environment = {**os.environ, "DISPLAY": display}
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)

    def draw(self, *arguments):
        return subprocess.run(
            [PROGRAM, *arguments],
            capture_output=True,
            encoding="utf-8",
            env=self.environment,
            timeout=SECONDS,
        )

    def assert_fails(self, message, *arguments):
        result = self.draw(*arguments)
        # GNUstep itself tells of a file that cannot be written.
        [line] = [line for line in result.stderr.splitlines() if not line.startswith("20")]
        self.assertEqual((result.returncode, line), (1, f"kestrune-pictures: {message}"))

    def test_show_each_window_in_each_state(self):
        folder = self.folder / "some where/pictures"
        result = self.draw(str(folder))
        self.assertEqual(result.returncode, 0, result.stderr)
        expected = {
            f"{window}/{state}-{appearance}.png"
            for window, states in STATES.items()
            for state in states
            for appearance in APPEARANCES
        }
        self.assertEqual(relative_names(folder), expected)
        for window, states in STATES.items():
            pictures = [(folder / window / f"{state}-light.png").read_bytes() for state in states]
            self.assertEqual(len(set(pictures)), len(states), f"{window}: two states look the same")
            for picture in pictures:
                width, height = size_of(picture)
                self.assertGreaterEqual(width, WIDTHS[window])
                self.assertLess(width, 1.1 * WIDTHS[window])
                self.assertGreater(height, LOWEST)

    def test_have_the_names_of_those_that_the_desk_paints(self):
        for window, states in STATES.items():
            folder = self.folder / window
            scenes = [f"{window}/{state}" for state in states]
            for appearance in APPEARANCES:
                option = ["--dark"] if appearance == "dark" else []
                command = [DESK, "--gallery", self.folder, *scenes, *option]
                subprocess.run(command, check=True, timeout=SECONDS)
                for state in states:
                    self.assertIn(f"{state}-{appearance}.png", relative_names(folder))

    def test_need_a_folder(self):
        usage = "name the folder for the pictures: kestrune-pictures FOLDER"
        self.assert_fails(usage)
        self.assert_fails(usage, "one", "two")

    def test_need_a_folder_that_can_be_written(self):
        (self.folder / "file").write_text("", encoding="utf-8")
        folder = f"{self.folder}/file/wizard"
        self.assert_fails(f"{folder} cannot be made; name another folder", f"{self.folder}/file")
        picture = self.folder / "wizard/intro-light.png"
        picture.mkdir(parents=True)
        self.assert_fails(f"{picture} cannot be written; name another folder", str(self.folder))


if __name__ == "__main__":
    unittest.main()
