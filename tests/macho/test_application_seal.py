"""The seal of the application itself, as `make test` builds it."""

import os
import pathlib
import shutil
import unittest

from tiny_bundles import SealTest, write
from trees import REPOSITORY

from releasing import halves
from releasing.sealing import machofile

APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])
SDK = REPOSITORY / "mac/sdk"


@unittest.skipUnless(APPLICATION.exists(), "make test has not built it")
class ApplicationSeal(SealTest):
    def setUp(self):
        super().setUp()
        self.app = self.root / "Kestrune.app"
        shutil.copytree(APPLICATION, self.app, symlinks=True)

    def test_holds_for_both_processors(self):
        lines = self.assert_holds(self.app, SDK)
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
                self.assert_noticed(self.app)
                path.write_bytes(data)
        self.assert_holds(self.app)

    def test_names_the_half_of_a_changed_byte(self):
        program = self.app / halves.PROGRAM
        data = program.read_bytes()
        processors = [half.processor for half in machofile.halves_of(data)]
        for processor, place in zip(processors, (len(data) // 3, len(data) * 5 // 6), strict=True):
            with self.subTest(processor):
                self.change_byte(program, place)
                result = self.check(self.app)
                self.assertEqual((result.returncode, result.stdout), (1, ""))
                name = f"Kestrune.app/{halves.PROGRAM}: {processor} half: page"
                self.assertRegex(
                    result.stderr, rf"^kestrune-check-seal: {name} \d+, .* was changed after it was sealed\n$"
                )
                program.write_bytes(data)

    def test_notices_an_import_that_no_system_has(self):
        program = self.app / halves.PROGRAM
        program.write_bytes(program.read_bytes().replace(b"\0_CFRelease\0", b"\0_CFReleasf\0"))
        self.seal(self.app)
        self.assert_holds(self.app)
        half = f"Kestrune.app/{halves.PROGRAM}: x86_64 half"
        library = "/System/Library/Frameworks/CoreFoundation.framework/Versions/A/CoreFoundation"
        message = f"{half}: imports _CFReleasf, which is not in the stub of {library}"
        self.assert_refused(self.app, message, SDK, status=2)

    def test_notices_a_file_that_was_added(self):
        for name in ("Contents/Resources/More.icns", "Contents/MacOS/more", "Contents/more"):
            with self.subTest(name):
                write(self.app / name, b"more")
                self.assert_refused(self.app, f"Kestrune.app/{name}: was added after the bundle was sealed")
                (self.app / name).unlink()

    def test_notices_a_file_that_is_missing(self):
        (self.app / "Contents/Resources/AppIcon.icns").unlink()
        message = "Kestrune.app/Contents/Resources/AppIcon.icns: was sealed and is missing"
        self.assert_refused(self.app, message)


if __name__ == "__main__":
    unittest.main()
