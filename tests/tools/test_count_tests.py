"""tools/count-tests counts what ctest reports, and does not take silence for success."""

import subprocess
import sys
import unittest

from trees import REPOSITORY, TreeTest

PASSED = '<testcase name="a" status="run"/>'
FAILED = '<testcase name="b" status="fail"><failure message=""/></testcase>'
SKIPPED = '<testcase name="c" status="notrun"><skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/></testcase>'
DISABLED = '<testcase name="d" status="disabled"/>'
NOT_BUILT = '<testcase name="e" status="notrun"><skipped message="Unable to find executable"/></testcase>'


class CountTests(TreeTest):
    def run_on(self, *paths):
        command = [sys.executable, str(REPOSITORY / "tools/count-tests"), *paths]
        return subprocess.run(command, cwd=self.root, capture_output=True, text=True)

    def count(self, *paths):
        result = self.run_on(*paths)
        return result.stdout, result.returncode

    def write_results(self, path, *cases):
        self.write({path: f'<?xml version="1.0"?><testsuite name="all">{"".join(cases)}</testsuite>'})

    def test_counts_what_passed(self):
        self.write_results("a.xml", PASSED, PASSED)
        self.assertEqual(self.count("a.xml"), ("2 passed, 0 failed\n", 0))

    def test_counts_what_was_skipped_on_purpose(self):
        self.write_results("a.xml", PASSED, SKIPPED, DISABLED)
        self.assertEqual(self.count("a.xml"), ("1 passed, 0 failed, 2 skipped\n", 0))

    def test_fails_with_a_failed_test(self):
        self.write_results("a.xml", PASSED, FAILED)
        self.assertEqual(self.count("a.xml"), ("1 passed, 1 failed\n", 1))

    def test_names_what_failed(self):
        self.write_results("a.xml", PASSED, FAILED)
        self.assertEqual(self.run_on("a.xml").stderr, "a.xml: b failed\n")

    def test_counts_a_program_that_was_not_built_as_failed(self):
        self.write_results("a.xml", PASSED, NOT_BUILT)
        self.assertEqual(self.count("a.xml"), ("1 passed, 1 failed\n", 1))

    def test_adds_runs_up(self):
        self.write_results("a.xml", PASSED, SKIPPED)
        self.write_results("b.xml", PASSED, PASSED)
        self.assertEqual(self.count("a.xml", "b.xml"), ("3 passed, 0 failed, 1 skipped\n", 0))

    def test_fails_when_no_test_ran(self):
        self.write_results("a.xml")
        self.assertEqual(self.count("a.xml"), ("0 passed, 0 failed\n", 1))

    def test_fails_with_a_run_that_did_not_happen(self):
        self.write_results("a.xml", PASSED)
        self.write({"broken.xml": "<testsuite>"})
        self.assertEqual(self.count("a.xml", "absent.xml"), ("1 passed, 0 failed\n", 1))
        self.assertEqual(self.count("a.xml", "broken.xml"), ("1 passed, 0 failed\n", 1))
        self.assertEqual(self.count(), ("0 passed, 0 failed\n", 1))


if __name__ == "__main__":
    unittest.main()
