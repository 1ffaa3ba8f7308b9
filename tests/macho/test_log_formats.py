"""The formats of the log lie where the log looks for them, in both halves of the shipped program."""

import os
import pathlib
import re
import unittest

from releasing.linux import PROGRAM
from releasing.sealing import machofile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])

FORMAT = re.compile(r'Log(?:Message|Format)::of<\s*"([^"]+)">')


def declared():
    files = [file for folder in ("Kestrune", "mac") for file in (REPOSITORY / folder).rglob("*.cpp")]
    return {text.encode() for file in files for text in FORMAT.findall(file.read_text(encoding="utf-8"))}


@unittest.skipUnless(APPLICATION.is_dir(), "make test has not built it")
class LogFormats(unittest.TestCase):
    def setUp(self):
        self.halves = machofile.halves_of((APPLICATION / PROGRAM).read_bytes())
        self.assertEqual(len(self.halves), 2)

    def test_all_have_a_section_of_their_own(self):
        self.assertIn(b"Failed to create event tap. Accessibility permission required.", declared())
        self.assertIn(b"LoginItem toggle failed: %{public}s", declared())
        for half in self.halves:
            with self.subTest(half.processor):
                texts = half.section(b"__TEXT", b"__oslogstring").split(b"\0")
                self.assertEqual(texts.pop(), b"")
                self.assertEqual(sorted(texts), sorted(declared()))

    def test_none_lies_elsewhere_too(self):
        for half in self.halves:
            with self.subTest(half.processor):
                section = half.section(b"__TEXT", b"__oslogstring")
                self.assertEqual(half.data.count(section), 1)
                elsewhere = half.data.replace(section, b"")
                self.assertEqual([text for text in declared() if text + b"\0" in elsewhere], [])
                self.assertNotIn(b"%{public}s", elsewhere)


if __name__ == "__main__":
    unittest.main()
