"""Notes to oneself and the remains of merges are found."""

import unittest

from trees import TreeTest
from checks import words


class Words(TreeTest):
    def test_pass_plain_text(self):
        text = "Title\n=====\n\nThere is nothing to do.\n"
        self.assert_clean(words, {"docs/A.md": text, "docs/HACKING.md": ""})

    def test_find_every_marker_in_every_kind_of_file(self):
        for marker in words.MARKERS:
            for path in ("base/A.h", "tools/setup.py", "CMakeLists.txt", "docs/A.md", "Makefile"):
                with self.subTest(marker=marker, path=path):
                    text = f"\n// {marker}: later\n"
                    self.assert_found(words, {path: text}, f"{path}:2: {marker} is a note")
                    (self.root / path).unlink()

    def test_look_into_scripts_without_a_suffix_and_not_into_data(self):
        text = "#!/bin/sh\n# " + words.MARKERS[0] + "\n"
        self.assert_found(words, {"tools/run": text, "tests/data.csv": text}, "tools/run:2: ")

    def test_find_what_a_merge_left(self):
        text = "a\n" + "<" * 7 + " HEAD\nb\n"
        self.assert_found(words, {"base/A.h": text}, "base/A.h:2: is left over from a merge")

    def test_leave_builds_alone(self):
        self.assert_clean(words, {"build/gcc/A.h": words.MARKERS[0], ".git/A.h": words.MARKERS[0]})


if __name__ == "__main__":
    unittest.main()
