"""Mistakes in workflows are found by file and line, and a check that cannot look says so."""

import unittest
from unittest import mock

from trees import TreeTest
from checks import workflows

LINUX = ".github/workflows/linux.yml"
MACS = ".github/workflows/macs.yml"
GOOD = """\
on: push
permissions:
  contents: read
jobs:
  first:
    strategy:
      matrix:
        system: [macos-15, macos-26]
    runs-on: ${{ matrix.system }}
    steps:
      - uses: actions/checkout@v4
      - run: make test
  second:
    needs: first
    runs-on: ubuntu-24.04
    steps:
      - name: Several lines
        if: ${{ !cancelled() }}
        run: |
          make run
          make test
      - uses: actions/upload-artifact@v4
        with:
          name: pictures
          path: out
"""


# What stands there instead, in a file of this name, and how the only finding starts.
MISTAKES = {
    "action-without-its-input": ("          path: out\n", "", '22: missing input "path" which is required'),
    "broken-expression": ("!cancelled()", "!cancelled(", "18: unexpected end of input while parsing"),
    "unknown-key": ("    needs: first\n", "    need: first\n", '14: unexpected key "need" for "job"'),
    "unknown-machine": ("macos-26", "macos-62", '8: label "macos-62" is unknown'),
    "unknown-needs": ("needs: first", "needs: zeroth", '13: job "second" needs job "zeroth" which does not'),
    "unknown-permission": ("contents: read", "contents: reed", '3: "reed" is invalid for permission'),
    "unknown-property": ("matrix.system", "matrix.sytem", '9: property "sytem" is not defined in object'),
    "shell-of-a-block": ("          make test\n", "          make $1\n", "21: Double quote to prevent"),
    "shell-of-a-line": ("- run: make test\n", "- run: make $1\n", "12: Double quote to prevent"),
}


def lacking():
    return ", ".join(workflows.missing())


@unittest.skipIf(lacking(), f"not installed: {lacking()}")
class Workflows(TreeTest):
    def test_pass_when_they_are_right(self):
        result = self.run_check(workflows, {LINUX: GOOD, MACS: GOOD})
        self.assertEqual((result.findings, result.examined), ([], "2 files with 4 shell steps"))

    def test_are_looked_at_in_their_folder_only(self):
        self.assertEqual(self.run_check(workflows, {"base/A.yml": "on: [\n"}).examined, "0 files")

    def test_have_none_of_these_mistakes(self):
        files, expected = {}, []
        for name, (right, wrong, finding) in sorted(MISTAKES.items()):
            self.assertEqual(GOOD.count(right), 1, name)
            path = f".github/workflows/{name}.yml"
            files[path] = GOOD.replace(right, wrong)
            expected.append(f"{path}:{finding}")
        self.assert_found(workflows, files, *expected)

    def test_put_no_expression_into_a_script(self):
        found = self.findings(workflows, {MACS: GOOD.replace("make run", "make ${{ github.ref_name }}")})
        self.assertIn(f"{MACS}:20: an expression stands in a script; pass it through env", found)

    def test_are_in_yaml(self):
        messages = f"{MACS}:1: could not parse as YAML", f"{MACS}:1: its shell steps cannot be found"
        for text in ("on: [\n", "on: push\njobs: \x01\n"):
            self.assert_found(workflows, {MACS: text}, *messages)

    def test_say_something(self):
        self.assert_found(workflows, {MACS: ""}, f"{MACS}:1: workflow is empty")


class WhereSomethingIsMissing(TreeTest):
    def assert_not_looked_at(self, message):
        self.assert_found(workflows, {LINUX: GOOD}, f"{LINUX}:1: {message}")

    def test_the_check_says_what_to_install(self):
        with (
            mock.patch("shutil.which", return_value=None),
            mock.patch.object(workflows, "yaml", None),
            mock.patch.object(workflows, "ACTIONLINT", self.root / "actionlint"),
        ):
            lacking = "nodejs, shellcheck, python3-yaml, build/actionlint"
            self.assert_not_looked_at(f"cannot be looked at without {lacking}; run: tools/setup check")

    @unittest.skipIf(lacking(), f"not installed: {lacking()}")
    def test_the_check_does_not_pass_with_half_of_actionlint(self):
        with mock.patch.object(workflows, "ACTIONLINT", self.root / ".github"):
            self.assert_not_looked_at("actionlint could not run: ")


if __name__ == "__main__":
    unittest.main()
