"""What a program costs is printed, and what it may not is refused."""

import os
import struct
import subprocess
import unittest

from tiny_bundles import FIXUP_OUTSIDE, PROGRAMS, SYSTEM, with_fixup_outside
from trees import TreeTest

SETTINGS = '{"CanonicalName": "macosx13.0", "Version": "13.0"}'
MEASURED = "bytes, 1 of 60 initializers, 1 of 170 imports, for macOS 13.0, SDK 13.0"


class Limits(TreeTest):
    def check(self, *arguments):
        program = os.environ["KESTRUNE_CHECK_LIMITS"]
        return subprocess.run([program, *map(str, arguments)], capture_output=True, encoding="utf-8")

    def sdk(self, text=SYSTEM % "_exit", settings=SETTINGS):
        self.write(
            {
                "sdk/usr/lib/libSystem.tbd": text,
                "sdk/SDKSettings.json": settings,
                "sdk/README.md": "No stub.",
            }
        )
        return self.root / "sdk"

    def test_are_printed_for_each_half(self):
        result = self.check(PROGRAMS / "universal.macho", self.sdk())
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        first, second = result.stdout.splitlines()
        self.assertRegex(first, rf"^x86_64: \d+ of 900000 {MEASURED}$")
        self.assertRegex(second, rf"^arm64: \d+ of 900000 {MEASURED}$")

    def test_are_parameters(self):
        program = PROGRAMS / "arm64.macho"
        size = program.stat().st_size
        arguments = ["--bytes", size - 1, "--initializers", 0, "--imports", 0, "--system", "12.3"]
        result = self.check(*arguments, program, self.sdk())
        beginning = f"kestrune-check-limits: {program}: "
        self.assertEqual(
            result.stderr.splitlines(),
            [
                f"{beginning}has {size} bytes, and {size - 1} are allowed",
                f"{beginning}has 1 initializers before main, and 0 are allowed",
                f"{beginning}has 1 imports, and 0 are allowed",
                f"{beginning}is for macOS 13.0, not 12.3",
            ],
        )
        self.assertEqual(result.returncode, 1)

    def test_are_those_of_one_sdk(self):
        program = PROGRAMS / "arm64.macho"
        result = self.check(program, self.sdk(settings=SETTINGS.replace("13.0", "26.0")))
        message = f"kestrune-check-limits: {program}: names the SDK 13.0, not 26.0\n"
        self.assertEqual((result.returncode, result.stderr), (1, message))

    def test_ask_for_each_import_in_the_stubs(self):
        program = PROGRAMS / "arm64.macho"
        for limits in ([], ["--imports", 0]):
            with self.subTest(limits=limits):
                result = self.check(*limits, program, self.sdk(SYSTEM % "_fork"))
                missing = "imports _exit, which is not in the stub of /usr/lib/libSystem.B.dylib"
                self.assertEqual(result.returncode, 2)
                self.assertEqual(
                    result.stderr.splitlines()[-1], f"kestrune-check-limits: {program}: {missing}"
                )

    def assert_unreadable(self, message, *arguments):
        result = self.check(*arguments)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr, f"kestrune-check-limits: {message}\n")

    def test_of_what_cannot_be_read_are_none(self):
        sdk, program = self.sdk(), PROGRAMS / "arm64.macho"
        script = self.root / "script"
        self.write({"script": "#!/bin/sh\n"})
        self.assert_unreadable(f"{script}: is no Mach-O file: it starts with 0x622f2123", script, sdk)
        self.assert_unreadable(f"{self.root}/none: No such file or directory", self.root / "none", sdk)
        self.assert_unreadable(f"{self.root}: Is a directory", self.root, sdk)
        self.assert_unreadable(f"{self.root}/none: No such file or directory", program, self.root / "none")
        self.sdk("exports:\n  - targets: [ i386-macos ]\n    symbols: [ _a ]\ninstall-name: A\n")
        message = "usr/lib/libSystem.tbd: i386-macos is no target that is known here"
        self.assert_unreadable(f"{sdk}/{message}", program, sdk)

    def assert_refused_as(self, message, data):
        changed = self.root / "changed"
        changed.write_bytes(data)
        self.assert_unreadable(f"{changed}: {message}", changed, self.sdk())

    def test_of_a_damaged_program_are_none(self):
        data = (PROGRAMS / "arm64.macho").read_bytes()
        message = "is for the processor 0x1000012, which is neither arm64 nor x86_64"
        self.assert_refused_as(message, data[:4] + struct.pack("<I", 0x01000012) + data[8:])
        self.assert_refused_as(FIXUP_OUTSIDE, with_fixup_outside(data))
        short = self.root / "short"
        short.write_bytes(data[:-100])
        result = self.check(short, self.sdk())
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertRegex(result.stderr, rf"^kestrune-check-limits: {short}: the segment .* the file at .*\n$")

    def test_need_an_sdk_that_says_which_it_is(self):
        program = PROGRAMS / "arm64.macho"
        sdk = self.sdk(settings='{"Version": "new"}')
        self.assert_unreadable(f"{sdk}/SDKSettings.json: new is no version", program, sdk)
        (sdk / "SDKSettings.json").unlink()
        self.assert_unreadable(f"{sdk}/SDKSettings.json: is missing", program, sdk)

    def test_have_to_be_numbers(self):
        for arguments in ([], ["--bytes", "many"], ["--seconds", "1"], ["--imports", ""], ["--system", "x"]):
            with self.subTest(arguments=arguments):
                result = self.check(*arguments, PROGRAMS / "arm64.macho")
                self.assertEqual(result.returncode, 2)
                self.assertTrue(result.stderr.startswith("kestrune-check-limits: usage: "), result.stderr)


if __name__ == "__main__":
    unittest.main()
