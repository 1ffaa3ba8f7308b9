"""Temporary repositories for the tests of the checks."""

import json
import pathlib
import sys
import tempfile
import unittest

REPOSITORY = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(REPOSITORY / "tools"))

from checks.tree import Tree  # noqa: E402


class TreeTest(unittest.TestCase):
    """Has a folder of its own for each test, which a test fills with files."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.root = pathlib.Path(temporary.name).resolve()

    def write(self, files):
        for path, text in files.items():
            target = self.root / path
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, encoding="utf-8")

    def configure(self, build, sources, root=None):
        """Writes what CMake would write about a build that compiles the sources."""
        folder = self.root / "build" / build
        folder.mkdir(parents=True, exist_ok=True)
        entries = [
            {
                "directory": str(folder),
                "file": str((root or self.root) / source),
                "command": f"clang++ -std=c++20 -I{self.root} -c {(root or self.root) / source}",
            }
            for source in sources
        ]
        (folder / "compile_commands.json").write_text(json.dumps(entries), encoding="utf-8")
        return folder

    def run_check(self, check, files, builds=()):
        self.write(files)
        return check.run(Tree(self.root, builds))

    def findings(self, check, files, builds=()):
        """The findings as text, without the advice: "path:line: what is wrong"."""
        return [str(finding) for finding in self.run_check(check, files, builds).findings]

    def assert_clean(self, check, files, builds=()):
        self.assertEqual(self.findings(check, files, builds), [])

    def assert_found(self, check, files, *beginnings, builds=()):
        """Each finding starts with the text given for it, in order."""
        found = self.findings(check, files, builds)
        self.assertEqual(len(found), len(beginnings), found)
        for finding, beginning in zip(found, beginnings):
            self.assertTrue(finding.startswith(beginning), f"{finding!r} does not start with {beginning!r}")
