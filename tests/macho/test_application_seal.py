"""The seal of the application itself, as `make test` builds it."""

import os
import pathlib
import shutil
import unittest

from tiny_bundles import SealTest

from releasing import halves

APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])


@unittest.skipUnless(APPLICATION.exists(), "make test has not built it")
class ApplicationSeal(SealTest):
    def setUp(self):
        super().setUp()
        self.app = self.root / "Kestrune.app"
        shutil.copytree(APPLICATION, self.app, symlinks=True)

    def test_holds_for_both_processors(self):
        lines = self.assert_holds(self.app)
        self.assertEqual(sorted(line.split(":")[0] for line in lines), ["arm64", "x86_64"])
        for line in lines:
            self.assertIn(", for macOS 13.0, org.kestrune.Kestrune, cdhash ", line)
        self.assertEqual(halves.lines(self.app / halves.PROGRAM), lines)

    def test_notices_a_changed_byte_anywhere(self):
        contents = self.app / "Contents"
        for path in sorted(contents.rglob("*")):
            name = path.relative_to(contents).as_posix()
            if path.is_symlink() or not path.is_file() or not path.stat().st_size or name == "PkgInfo":
                continue
            with self.subTest(name):
                data = path.read_bytes()
                self.change_byte(path, len(data) // 3)
                self.assertNotEqual(self.check(self.app).returncode, 0)
                path.write_bytes(data)
        self.assert_holds(self.app)


if __name__ == "__main__":
    unittest.main()
