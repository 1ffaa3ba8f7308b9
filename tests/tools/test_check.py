"""tools/check runs every check before it fails."""

import subprocess
import sys
import unittest

from trees import REPOSITORY, TreeTest


class Check(TreeTest):
    def check(self, *arguments):
        command = [sys.executable, str(REPOSITORY / "tools/check"), "--root", str(self.root)]
        return subprocess.run([*command, *arguments], capture_output=True, text=True)

    def test_passes_a_clean_tree(self):
        self.write({"base/A.h": "#pragma once\n"})
        result = self.check("includes", "words", "style")
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual(
            result.stdout.splitlines(),
            [
                "includes: 1 files, 0 arrows between 1 folders, 0 findings",
                "words: 1 files, 0 findings",
                "style: 1 files, 0 findings",
            ],
        )

    def test_runs_the_checks_after_one_that_found_something(self):
        self.write({"base/A.h": "#include <iostream>\nint a; \n"})
        result = self.check("includes", "style")
        self.assertEqual(result.returncode, 1)
        self.assertIn("base/A.h:1: <iostream> is outside the portable subset", result.stdout)
        self.assertIn("base/A.h:2: the line ends in white space", result.stdout)
        self.assertIn("includes: 1 files, 0 arrows between 1 folders, 1 findings", result.stdout)
        self.assertEqual(result.stdout.splitlines()[-1], "style: 1 files, 1 findings")

    def test_knows_the_names_of_its_checks(self):
        result = self.check("formatting")
        self.assertEqual(result.returncode, 2)
        self.assertIn("no check is called formatting", result.stderr)


if __name__ == "__main__":
    unittest.main()
