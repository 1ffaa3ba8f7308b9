"""A document that points at what is not there is found."""

import unittest

from trees import TreeTest
from checks import documents


HEADING = "# What it *does*: `make run`\n"


class Documents(TreeTest):
    def assert_points(self, text, *findings):
        files = {"docs/A.md": text, "docs/B.md": HEADING, "tools/app": "", "base/A.h": ""}
        if findings:
            self.assert_found(documents, files, *findings)
        else:
            self.assert_clean(documents, files)

    def test_may_point_at_files_headings_and_elsewhere(self):
        self.assert_points("# A b\n[1](B.md) [2](#a-b) [3](B.md#what-it-does-make-run)\n")
        self.assert_points("[1](../tools/app) [2](https://example.org/none)\n")

    def test_find_a_link_to_no_file(self):
        self.assert_points("\n[1](C.md)\n", "docs/A.md:2: the link to C.md leads nowhere")

    def test_find_a_link_to_no_heading(self):
        for target in ("B.md#what-it-is", "#a"):
            self.assert_points(f"[1]({target})\n", f"docs/A.md:1: the link to {target} leads nowhere")

    def test_may_name_what_is_there_what_is_made_and_what_is_no_path(self):
        self.assert_points("`tools/app` `tools` `base/A` `a/b` `make` `/tools/none`\n")
        self.assert_points("`build/gcc/none` `out/tour` `tools/*.md` `tools/NAME.…`\n")

    def test_find_a_name_of_nothing(self):
        self.assert_points("`tools/application`\n", "docs/A.md:1: there is no tools/application")


if __name__ == "__main__":
    unittest.main()
