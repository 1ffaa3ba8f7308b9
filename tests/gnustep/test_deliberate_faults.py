"""Programs for Macs with one fault each: it is named by what judges the file, or by running it."""

import os
import pathlib
import re
import shutil
import struct
import subprocess
import unittest

import names
import worlds
from releasing import sealing
from releasing.halves import PROGRAM
from trees import TreeTest

STORIES = pathlib.Path(os.environ["KESTRUNE_STORIES"])
APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])
PROCESSOR = os.environ["KESTRUNE_PROCESSOR"]

UNREADABLE = 2

# Classes and selectors, each of which something would be nil or zero without.
LACKED = """NSImageView NSMutableParagraphStyle NSTextField NSSwitch
    configurationWithPointSize:weight:scale: initWithWindow: isMainThread objCType secondaryLabelColor
    separatorColor systemFontOfSize:weight:""".split()

# What VoiceOver would read of Settings.
READ_OUT = "ReadOut.OfSettingsIsTheLabelOfASwitchOnceAndNoBox"

DRAWS_IN_A_VIEW = b"v@:{CGRect={CGPoint=dd}{CGSize=dd}}"


def flags_of_blocks(flags):
    """What may be in the program for them: an instruction that stores the number where a block has its flags,
    or one that puts its upper half into one of the registers."""
    if PROCESSOR == "x86_64":
        store_at_register_plus_8 = [bytes([0xC7, 0x40 | register, 8]) for register in range(8)]
        return [instruction + struct.pack("<I", flags) for instruction in store_at_register_plus_8]
    move_upper_half = 0x72A00000  # Arm Architecture Reference Manual, MOVK
    return [struct.pack("<I", move_upper_half | (flags >> 16) << 5 | register) for register in range(31)]


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

    def run_story(self, stories=worlds.FIRST_RUN):
        settings = {
            "GTEST_FILTER": stories,
            "KESTRUNE_PROGRAM": str(self.program),
            "OS_ACTIVITY_DT_MODE": "YES",
        }
        return subprocess.run(
            [STORIES], env=self.environment | settings, capture_output=True, encoding="utf-8", timeout=120
        )

    def assert_judged(self, *findings):
        """Of either half."""
        expected = [f"{half}: {finding}" for half in ("x86_64", "arm64") for finding in findings]
        judged = [str(finding) for finding in names.judge_program(self.program)]
        self.assertEqual(sorted(judged), sorted(expected))

    def assert_logged_once(self, name, message):
        """The story, which does not need it, comes to its end."""
        sealing.seal(self.application)
        result = self.run_story()
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        (line,) = [line for line in result.stderr.splitlines() if name in line]
        self.assertRegex(line, rf"^\[org\.kestrune\.Kestrune:app\] {message}$")

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
        self.assertNotIn("There is no ", result.stderr)
        self.assertIn("There is another encoding of -[NSSwitch state]: expected q@:, found Q", result.stderr)
        self.assert_judged()

    def test_a_wrong_selector(self):
        self.replace(b"\0setToolTip:\0", b"\0setToolTep:\0")
        self.assert_judged(
            "selector setToolTep: is declared nowhere",
            "selector setToolTip: is declared, and not in the program",
        )
        self.assert_logged_once("setToolTep:", r"There is no method -\[\w+ setToolTep:\] at run time")

    def test_a_missing_protocol(self):
        self.replace(b"\0NSMenuDelegate\0", b"\0NSMenuDelegata\0")
        self.assert_judged(
            "name NSMenuDelegata is declared nowhere",
            "protocol NSMenuDelegate is declared, and not in the program",
        )
        self.assert_logged_once("NSMenuDelegata", "There is no protocol NSMenuDelegata at run time")

    def test_a_name_that_the_platform_lacks(self):
        """What depends on it may fail in the stories, and the process goes on to their end."""
        for name in LACKED:
            other = name[:-2] + name[-2:].translate(str.maketrans("abcdefghijklmnopqrstuvwxyz", "z" * 26))
            with self.subTest(name):
                shutil.rmtree(self.application)
                shutil.copytree(APPLICATION, self.application)
                self.replace(f"\0{name}\0".encode(), f"\0{other}\0".encode())
                sealing.seal(self.application)
                lines = set()
                for story in (worlds.FIRST_RUN, READ_OUT):
                    result = self.run_story(story)
                    self.assertIn(result.returncode, (0, 1), result.stdout + result.stderr)
                    found = re.findall(rf".*\b{other}(?!\w).*", result.stderr)
                    # A method is missed in the class that declares it, then in one that is made of that.
                    lines |= {re.sub(r"(?<=[+-]\[)\w+ ", "", line) for line in found}
                self.assertEqual(len(lines), 1, lines)
                self.assertIn(" at run time", *lines)

    def test_a_block_with_a_wrong_layout(self):
        """Whoever copies it would take it for one on the stack."""
        content = self.program.read_bytes()
        changes = zip(flags_of_blocks(0x43000002), flags_of_blocks(0x42000002))
        ((right, wrong),) = [change for change in changes if change[0] in content]
        self.assertEqual(content.count(right), 1)
        self.replace(right, wrong)
        sealing.seal(self.application)
        self.assert_named(
            "A block is not laid out as it has to be: its flags do not say that it is on the heap"
        )

    def test_a_wrong_encoding_of_a_method_that_the_platform_calls(self):
        self.replace(DRAWS_IN_A_VIEW + b"@\0", DRAWS_IN_A_VIEW + b"q\0")
        sealing.seal(self.application)
        self.assert_named(
            "-[KestruneDrawnButtonCell drawWithFrame:inView:] has the encoding "
            f"{DRAWS_IN_A_VIEW.decode()}q, and NS",
            "'s has v",
        )

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
