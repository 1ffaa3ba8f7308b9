"""Files that are no programs for this processor: each is refused in one line, with status 2."""

import os
import pathlib
import subprocess
import unittest

from releasing import sealing
from tiny_bundles import FIXUP_OUTSIDE, PROGRAMS, make_application, with_fixup_outside
from trees import TreeTest

# Of the loader, and one that it does not run.
PROCESSOR = os.environ["KESTRUNE_PROCESSOR"]
OTHER = {"arm64": "x86_64", "x86_64": "arm64"}[PROCESSOR]


class MachProgram(TreeTest):
    def assert_refused(self, path, reason):
        result = subprocess.run(
            [os.environ["KESTRUNE_MACH_PROGRAM"], path], capture_output=True, encoding="utf-8", timeout=60
        )
        self.assertEqual((result.returncode, result.stdout), (2, ""), result.stderr)
        self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
        self.assertTrue(result.stderr.startswith(f"{path}: "), result.stderr)
        self.assertIn(reason, result.stderr)

    def changed(self, change, path=None):
        path = path or self.root / "changed.macho"
        path.write_bytes(change((PROGRAMS / f"{PROCESSOR}.macho").read_bytes()))
        return path

    def test_that_is_not_there(self):
        self.assert_refused(pathlib.Path("/nowhere/Kestrune"), "No such file or directory")

    def test_that_is_a_folder(self):
        self.assert_refused(self.root, "Is a directory")

    def test_of_another_kind(self):
        self.write({"script": "#!/bin/sh\n"})
        self.assert_refused(self.root / "script", "is no Mach-O file")

    def test_for_another_processor(self):
        self.assert_refused(PROGRAMS / f"{OTHER}.macho", PROCESSOR)

    def test_that_ends_early(self):
        self.assert_refused(self.changed(lambda content: content[: len(content) // 2]), "are there")

    def test_without_a_seal(self):
        self.assert_refused(PROGRAMS / f"{PROCESSOR}.macho", "signature")

    def test_with_a_fixup_outside_its_segments(self):
        application = make_application(self.root / "Tiny.app")
        program = self.changed(with_fixup_outside, application / "Contents/MacOS/Tiny")
        sealing.seal(application)
        self.assert_refused(program, FIXUP_OUTSIDE)


if __name__ == "__main__":
    unittest.main()
