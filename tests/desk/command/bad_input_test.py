#!/usr/bin/env python3
"""What unusable input gets: one line that names the place, exit status 2, and no report.

Usage: bad_input_test.py DESK
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

HEADER = "record timestamp,client timestamp,button,state,x,y\n"
GOOD_ROW = "0.5,0.5,NoButton,Move,100,200\n"

# The name of the case, the file's content, and what the line says after the file's name.
RECORDINGS = [
    ("empty", b"", ":1: "),
    ("header only", HEADER.encode(), ":2: "),
    ("wrong header", b"time,x,y\n" + GOOD_ROW.encode(), ":1: "),
    ("truncated row", (HEADER + GOOD_ROW + "1.5,1.5,NoBut").encode(), ":3: "),
    ("too many columns", (HEADER + "1,1,NoButton,Move,1,2,3\n").encode(), ":2: "),
    ("no number", (HEADER + GOOD_ROW + "1,1,NoButton,Move,abc,2\n").encode(), ":3: "),
    ("infinity", (HEADER + "1,1,NoButton,Move,inf,2\n").encode(), ":2: "),
    ("infinite time", (HEADER + "1,inf,NoButton,Move,1,2\n").encode(), ":2: "),
    ("not a number", (HEADER + "1,1,NoButton,Move,nan,2\n").encode(), ":2: "),
    ("negative position", (HEADER + "1,1,NoButton,Move,-4,2\n").encode(), ":2: "),
    ("unknown state", (HEADER + "1,1,NoButton,Hover,4,2\n").encode(), ":2: "),
    ("a line of 10 MB", HEADER.encode() + b"1" * 10_000_000 + b"\n", ":2: "),
    ("NUL bytes", HEADER.encode() + b"1,1,NoButton,Move,1,2\0\n", ":2: "),
    ("invalid UTF-8", HEADER.encode() + b"1,1,\xff\xfe,Move,1,2\n", ":2: "),
]

OPTIONS = [
    (["--sideways"], "--sideways"),
    (["--replay"], "--replay"),
    (["--replay", "GOOD", "--displays", ""], "--displays"),
    (["--replay", "GOOD", "--displays", "wide"], "--displays"),
    (["--replay", "GOOD", "--displays", "100x100+5+5"], "--displays"),
    (["--replay", "GOOD", "--displays", "0x100+0+0"], "--displays"),
    (["--replay", "GOOD", "--displays", "100x-100+0+0"], "--displays"),
    (["--replay", "GOOD", "--displays", "100x100+0+0,100x100+50+0"], "--displays"),
    (["--replay", "GOOD", "--displays", "100x100+0+0,"], "--displays"),
    (["--replay", "GOOD", "--displays", "infxnan+0+0"], "--displays"),
    (["--replay", "GOOD", "--pin", "3"], "--pin"),
    (["--replay", "GOOD", "--guard", "perhaps"], "--guard"),
    (["--replay", "GOOD", "--margin", "inf"], "--margin"),
    (["--replay", "GOOD", "--report", "xml"], "--report"),
    (["--replay", "GOOD", "--emit", "MISSING/out.csv"], "MISSING/out.csv"),
    (["--replay", "GOOD", "--screenshot", "MISSING/out.png"], "MISSING/out.png"),
    (["--defaults", "BROKEN"], "BROKEN:1"),
    (["--generate", "MISSING/made.csv"], "MISSING/made.csv"),
    (["--emit", "somewhere"], "--emit"),
    (["--permission", "perhaps"], "--permission"),
    (["--launch", "--permission"], "--permission"),
    (["--replay", "GOOD", "--permission", "missing"], "--permission"),
    (["--replay", "GOOD", "--launch"], "--launch"),
    (["--launch", "--defaults", "BROKEN"], "BROKEN:1"),
    (["--replay", "GOOD", "--gallery", "somewhere"], "--gallery"),
    (["--gallery", "BROKEN/gallery", "tour/held"], "BROKEN/gallery"),
    (["--replay", "GOOD", "--pin", "1", "--pin", "2"], "--pin"),
    (["--seed", "1"], "--seed"),
    (["--replay", "GOOD", "--defaults", "BROKEN"], "--defaults"),
]

# A refusal must not depend on a display server.
WITHOUT_DISPLAY = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}


class BadInput(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def refuse(self, arguments, place):
        command = [DESK, *map(str, arguments)]
        result = subprocess.run(command, capture_output=True, check=False, timeout=60, env=WITHOUT_DISPLAY)
        message = result.stderr.decode()
        self.assertEqual(result.returncode, 2, message)
        self.assertEqual(result.stdout, b"")
        self.assertEqual(message.count("\n"), 1, message)
        self.assertTrue(message.endswith("\n"))
        self.assertLess(len(message), 400)
        self.assertIn(str(place), message)
        self.assertTrue(message.isprintable() or message[:-1].isprintable(), message)

    def test_a_scene_that_there_is_none_of(self):
        command = [DESK, "--gallery", str(self.folder / "gallery"), "tour/hold"]
        result = subprocess.run(command, capture_output=True, check=False, timeout=60, text=True)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr.count("\n"), 1)
        self.assertIn('--gallery: no scene is called "tour/hold"; there are tour, ', result.stderr)
        for name in ("tour/held", "wizard/waiting-focused", "settings/long"):
            self.assertIn(f" {name}", result.stderr)
        self.assertFalse((self.folder / "gallery").exists())

    def test_recordings(self):
        for name, content, place in RECORDINGS:
            with self.subTest(name):
                path = self.folder / "walk.csv"
                path.write_bytes(content)
                self.refuse(["--replay", path, "--report", "json"], f"{path}{place}")

    def test_a_recording_that_is_missing_and_one_that_is_a_folder(self):
        self.refuse(["--replay", self.folder / "absent.csv"], self.folder / "absent.csv")
        self.refuse(["--replay", self.folder], self.folder)

    def test_a_report_that_cannot_be_written(self):
        (self.folder / "good.csv").write_text(HEADER + GOOD_ROW)
        with open("/dev/full", "w", encoding="utf-8") as full:
            command = [DESK, "--replay", str(self.folder / "good.csv"), "--report", "json"]
            result = subprocess.run(command, stdout=full, stderr=subprocess.PIPE, check=False, timeout=60)
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output", result.stderr)

    def test_options(self):
        (self.folder / "good.csv").write_text(HEADER + GOOD_ROW)
        (self.folder / "broken.plist").write_text("not a property list")
        places = {
            "GOOD": str(self.folder / "good.csv"),
            "BROKEN": str(self.folder / "broken.plist"),
            "MISSING": str(self.folder / "missing"),
        }

        def fill(text):
            for word, path in places.items():
                text = text.replace(word, path)
            return text

        for arguments, place in OPTIONS:
            with self.subTest(" ".join(arguments)):
                self.refuse([fill(word) for word in arguments], fill(place))
        self.assertEqual((self.folder / "broken.plist").read_text(), "not a property list")


if __name__ == "__main__":
    DESK = sys.argv.pop(1)
    unittest.main()
