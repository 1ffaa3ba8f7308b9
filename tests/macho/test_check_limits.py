"""What a program costs is printed, and what it may not is refused."""

import os
import subprocess
import unittest

from tiny_bundles import PROGRAMS
from trees import TreeTest

SYSTEM = "install-name: /usr/lib/libSystem.B.dylib\n_exit\n"
MEASURED = "bytes, 1 of 60 initializers, 1 of 170 imports, for macOS 13.0"


class Limits(TreeTest):
    def check(self, *arguments):
        program = os.environ["KESTRUNE_CHECK_LIMITS"]
        return subprocess.run([program, *map(str, arguments)], capture_output=True, encoding="utf-8")

    def lists(self, text=SYSTEM):
        self.write({"exports/System.txt": text, "exports/README.md": "No list."})
        return self.root / "exports"

    def test_are_printed_for_each_half(self):
        result = self.check(PROGRAMS / "universal.macho", self.lists())
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        first, second = result.stdout.splitlines()
        self.assertRegex(first, rf"^x86_64: \d+ of 900000 {MEASURED}$")
        self.assertRegex(second, rf"^arm64: \d+ of 900000 {MEASURED}$")

    def test_are_parameters(self):
        program = PROGRAMS / "arm64.macho"
        size = program.stat().st_size
        arguments = ["--bytes", size - 1, "--initializers", 0, "--imports", 0, "--system", "12.3"]
        result = self.check(*arguments, program, self.lists())
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

    def test_ask_for_each_import_in_the_lists(self):
        lists = self.lists("install-name: /usr/lib/libSystem.B.dylib\n_fork\n")
        result = self.check(PROGRAMS / "arm64.macho", lists)
        self.assertEqual(result.returncode, 1)
        self.assertIn("imports _exit, which is not in the export list of /usr/lib/libSystem.B", result.stderr)

    def assert_unreadable(self, message, *arguments):
        result = self.check(*arguments)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr, f"kestrune-check-limits: {message}\n")

    def test_of_what_cannot_be_read_are_none(self):
        lists, program = self.lists(), PROGRAMS / "arm64.macho"
        script = self.root / "script"
        self.write({"script": "#!/bin/sh\n"})
        self.assert_unreadable(f"{script}: is no Mach-O file: it starts with 0x622f2123", script, lists)
        self.assert_unreadable(f"{self.root}/none: No such file or directory", self.root / "none", lists)
        self.assert_unreadable(f"{self.root}/none: No such file or directory", program, self.root / "none")
        self.lists("_exit\n")
        message = 'System.txt: _exit: is not "install-name: " and the library\'s'
        self.assert_unreadable(f"{lists}/{message}", program, lists)

    def test_have_to_be_numbers(self):
        for arguments in ([], ["--bytes", "many"], ["--seconds", "1"], ["--imports", ""]):
            with self.subTest(arguments=arguments):
                result = self.check(*arguments, PROGRAMS / "arm64.macho")
                self.assertEqual(result.returncode, 2)
                self.assertTrue(result.stderr.startswith("kestrune-check-limits: usage: "), result.stderr)


if __name__ == "__main__":
    unittest.main()
