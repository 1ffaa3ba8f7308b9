"""Every selector in the shipped program is declared, and every declared one is in both of its halves."""

import os
import pathlib
import re
import unittest

from releasing.halves import PROGRAM
from releasing.sealing import machofile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])

# A text of words that end with colons, as in "setFrame:display:". Those without any look like other texts.
SELECTOR = re.compile(rb"(?<=\0)[a-z]\w{2,}:(?:\w+:)*(?=\0)")
IN_QUOTES = re.compile(r'"([\w:]+)"')
ACTION = re.compile(r'\bSelector(?: \w+\{|\()"([\w:]+)"')
REGISTERED = re.compile(r"\b(?:sel_registerName|sel_getUid|NSSelectorFromString)\b")


def texts_in(folder, pattern, glob):
    files = sorted((REPOSITORY / folder).glob(glob))
    return {text for file in files for text in pattern.findall(file.read_text(encoding="utf-8"))}


def declared():
    """What is sent to the platform, what it sends, and the classes that have it."""
    return texts_in("mac/vocabulary", IN_QUOTES, "*.h")


def actions():
    """What menus are told to send, to the application or along the responder chain."""
    return texts_in("Kestrune", ACTION, "*.cpp")


class Sources(unittest.TestCase):
    def test_register_selectors_where_each_is_given_its_name_and_nowhere_else(self):
        """A message, a method that the platform calls, and the action of a menu's item."""
        sources = [path for path in (REPOSITORY / "mac").rglob("*.*") if path.suffix in (".h", ".cpp")]
        found = {
            path.relative_to(REPOSITORY / "mac").as_posix()
            for path in sources
            if REGISTERED.search(path.read_text(encoding="utf-8"))
        }
        declaration = "sdk/usr/include/objc/objc.h"
        self.assertEqual(found, {declaration, "Menu.cpp", "objc/Message.cpp", "objc/RuntimeClass.h"})


@unittest.skipUnless(APPLICATION.is_dir(), "make test has not built it")
class Selectors(unittest.TestCase):
    def setUp(self):
        program = (APPLICATION / PROGRAM).read_bytes()
        self.halves = [half.data for half in machofile.halves_of(program)]
        self.assertEqual(len(self.halves), 2)

    def test_each_is_declared(self):
        for half in self.halves:
            found = {selector.decode() for selector in SELECTOR.findall(half)}
            self.assertGreater(len(found), 100)
            self.assertEqual(found - declared() - actions(), set())

    def test_each_declared_one_is_there(self):
        for half in self.halves:
            missing = {text for text in declared() if b"\0" + text.encode() + b"\0" not in half}
            self.assertEqual(missing, set())


if __name__ == "__main__":
    unittest.main()
