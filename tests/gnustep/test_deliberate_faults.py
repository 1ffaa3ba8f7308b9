"""Programs for Macs with one fault each: running them names it."""

import os
import pathlib
import shutil
import subprocess
import unittest

import worlds
from releasing import sealing
from releasing.halves import PROGRAM
from trees import TreeTest

STORIES = pathlib.Path(os.environ["KESTRUNE_STORIES"])
APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])
PROCESSOR = os.environ["KESTRUNE_PROCESSOR"]

UNREADABLE = 2


class DeliberateFaults(TreeTest):
    @classmethod
    def setUpClass(cls):
        stage = worlds.stage()
        _, cls.environment = stage.__enter__()
        cls.addClassCleanup(stage.__exit__, None, None, None)

    def setUp(self):
        super().setUp()
        self.application = self.root / "Kestrune.app"
        shutil.copytree(APPLICATION, self.application)
        self.program = self.application / PROGRAM

    def replace(self, old, new):
        """Wherever it stands in the program, at the same length."""
        content = self.program.read_bytes()
        self.assertIn(old, content)
        self.assertEqual(len(old), len(new))
        self.program.write_bytes(content.replace(old, new))

    def run_story(self):
        settings = {"GTEST_FILTER": worlds.FIRST_RUN, "KESTRUNE_PROGRAM": str(self.program)}
        return subprocess.run(
            [STORIES], env=self.environment | settings, capture_output=True, encoding="utf-8", timeout=120
        )

    def assert_named(self, *parts):
        result = self.run_story()
        self.assertNotEqual(result.returncode, 0)
        for part in parts:
            self.assertIn(part, result.stdout + result.stderr)
        return result

    def assert_refused(self, *parts):
        """Before it runs, in one line that names the file and its half."""
        result = self.assert_named(*parts)
        self.assertEqual((result.returncode, result.stderr.count("\n")), (UNREADABLE, 1), result.stderr)
        beginning = f"{self.program}: {PROCESSOR} half: "
        self.assertTrue(result.stderr.startswith(beginning), result.stderr)

    def test_none_is_found_in_the_program_as_it_is(self):
        result = self.run_story()
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    @unittest.skipIf(PROCESSOR == "arm64", "there every structure is returned in the same way")
    def test_a_structure_that_is_returned_in_another_way(self):
        self.replace(b"\0_objc_msgSend_stret\0", b"\0_objc_msgSend\0stret\0")
        sealing.seal(self.application)
        self.assert_named("] returns a structure in memory and was sent objc_msgSend")

    def test_a_symbol_that_no_library_has(self):
        self.replace(b"\0_CFRelease\0", b"\0_CFReleasf\0")
        sealing.seal(self.application)
        self.assert_refused("imports what is not there: _CFReleasf of ", "/CoreFoundation")

    def test_a_symbol_that_the_system_here_has_for_itself(self):
        self.replace(b"\0_memcpy\0", b"\0_getpid\0")
        sealing.seal(self.application)
        symbol = "_getpid of /usr/lib/libSystem.B.dylib"
        self.assert_refused(f"{symbol} is found in libc, which may be another function")

    @unittest.skipUnless(PROCESSOR == "arm64", "only there strings have two layouts")
    def test_a_function_that_has_strings_of_another_layout(self):
        self.replace(b"\0__ZNSt3__19to_stringEj\0", b"\0__ZNSt3__19to_stringEd\0")
        sealing.seal(self.application)
        self.assert_refused("_ZNSt3__19to_stringEd may have to do with strings")

    def test_a_page_that_is_not_what_was_sealed(self):
        self.replace(b"\0Pin Dock to:\0", b"\0Pin Dock at:\0")
        self.assert_refused(": page ", "was changed after it was sealed")


if __name__ == "__main__":
    unittest.main()
