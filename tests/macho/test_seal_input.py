"""What the checker of seals cannot read, and what a program imports that is not there: each in one line."""

import os
import struct
import unittest

from tiny_bundles import (
    FIXUP_OUTSIDE,
    SYSTEM,
    SealedApplication,
    put_program,
    with_fixup_outside,
    write,
)


class Import(SealedApplication):
    def setUp(self):
        super().setUp()
        put_program(self.contents / "MacOS/other", "imports")
        self.seal(self.app)
        self.half = "Tiny.app/Contents/MacOS/Tiny: x86_64 half"

    def sdk(self, text):
        self.write({"sdk/usr/lib/libSystem.tbd": text, "sdk/README.md": "No stub."})
        return self.root / "sdk"

    def test_of_the_program_alone_has_to_be_in_a_stub(self):
        """What code from elsewhere imports is in nobody's list."""
        self.assert_holds(self.app, self.sdk(SYSTEM % "_exit"))

    def test_that_is_not_there_is_named(self):
        message = "imports _exit, which is not in the stub of /usr/lib/libSystem.B.dylib"
        self.assert_refused(self.app, f"{self.half}: {message}", self.sdk(SYSTEM % "_fork"), status=2)

    def test_from_a_library_without_a_stub_is_named(self):
        message = "imports from /usr/lib/libSystem.B.dylib, which no stub is about"
        self.assert_refused(self.app, f"{self.half}: {message}", self.sdk("install-name: A\n"), status=2)

    def test_is_looked_up_in_stubs_that_can_be_read(self):
        sdk = self.sdk("exports: []\n")
        result = self.check(self.app, sdk)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertRegex(result.stderr, rf"^kestrune-check-seal: {sdk}/usr/lib/libSystem.tbd: .*\n$")
        message = f"{self.root}/none: No such file or directory"
        self.assert_refused(self.app, message, self.root / "none", status=2)


class Input(SealedApplication):
    def setUp(self):
        super().setUp()
        self.seal(self.app)

    def test_that_is_no_program_is_named(self):
        write(self.program, b"#!/bin/sh\nexit 0\n")
        message = "Tiny.app/Contents/MacOS/Tiny: is no Mach-O file: it starts with 0x622f2123"
        self.assert_refused(self.app, message, status=2)

    def test_that_is_for_another_processor_is_named(self):
        name = "Tiny.app/Contents/MacOS/Tiny"
        message = f"{name}: is for the processor 0x1000012, which is neither arm64 nor x86_64"
        processor, table = struct.pack("<I", 0x01000012), struct.pack(">I", 0x01000012)
        whole = self.program.read_bytes()
        write(self.program, whole[:8] + table + whole[12:])
        self.assert_refused(self.app, message, status=2)
        put_program(self.program, "arm64")
        self.seal(self.app)
        half = self.program.read_bytes()
        write(self.program, half[:4] + processor + half[8:])
        self.assert_refused(self.app, message, status=2)

    def test_that_ends_early_is_named(self):
        data = self.program.read_bytes()
        write(self.program, data[:-100])
        name = "Tiny.app/Contents/MacOS/Tiny"
        result = self.check(self.app)
        self.assertEqual(result.returncode, 2)
        self.assertRegex(result.stderr, f"^kestrune-check-seal: {name}: the arm64 half at .* are there\n$")

    def test_with_a_fixup_outside_its_segment_is_named(self):
        put_program(self.program, "arm64")
        write(self.program, with_fixup_outside(self.program.read_bytes()))
        self.seal(self.app)
        self.assert_refused(self.app, f"Tiny.app/Contents/MacOS/Tiny: {FIXUP_OUTSIDE}", status=2)

    def test_that_is_a_list_of_endless_depth_is_named(self):
        write(self.contents / "Info.plist", b"<plist>" + b"<array>" * 50_000 + b"</array>" * 50_000)
        message = "has 750007 bytes, and lists of up to 65536 are read"
        self.assert_refused(self.app, f"Tiny.app/Contents/Info.plist: {message}")

    def test_that_is_not_there_is_named(self):
        result = self.check(self.root / "Other.app")
        self.assertEqual(result.returncode, 2)
        self.assertEqual(
            result.stderr, f"kestrune-check-seal: {self.root}/Other.app: No such file or directory\n"
        )

    def test_that_is_no_folder_is_named(self):
        self.assert_refused(self.program, f"{self.program}: Not a directory", status=2)

    def test_that_is_neither_file_nor_folder_is_named(self):
        os.mkfifo(self.contents / "Resources/pipe")
        result = self.check(self.app)
        self.assertEqual(result.returncode, 2)
        self.assertIn("/Resources/pipe: ", result.stderr)

    def test_has_to_be_given(self):
        result = self.check()
        usage = "kestrune-check-seal: usage: kestrune-check-seal APP [SDK]\n"
        self.assertEqual((result.returncode, result.stderr), (2, usage))


if __name__ == "__main__":
    unittest.main()
