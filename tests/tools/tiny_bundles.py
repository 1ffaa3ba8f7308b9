"""Small bundles of tiny programs, sealed by the project's signer, and the checker to show them to."""

import os
import plistlib
import struct
import subprocess

from trees import REPOSITORY, TreeTest

from releasing import sealing

PROGRAMS = REPOSITORY / "tests/fuzz/corpus/mach-file"
IDENTIFIER = "org.kestrune.Tiny"

# A stub of the library that tiny programs import from, with whatever symbols.
SYSTEM = """--- !tapi-tbd
install-name: '/usr/lib/libSystem.B.dylib'
exports:
  - targets: [ x86_64-macos, arm64-macos ]
    symbols: [ %s ]
...
"""

# What is said of a program that was changed by with_fixup_outside.
FIXUP_OUTSIDE = "the chained fixups: the fixup at 0x10001000c is not within its page of the segment __DATA"


def write(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)


def put_program(path, kind="universal"):
    write(path, (PROGRAMS / f"{kind}.macho").read_bytes())
    path.chmod(0o755)


def with_fixup_outside(program):
    """A program with one import whose chain, from the first pointer of the data on, leaves its segment."""
    place = program.index(struct.pack("<Q", 1 << 63)) - 8
    return program[:place] + struct.pack("<Q", 3 << 51) + program[place + 8 :]


def information(executable, identifier):
    return plistlib.dumps({"CFBundleExecutable": executable, "CFBundleIdentifier": identifier})


def make_application(path, identifier=IDENTIFIER):
    """With a file of each kind that the rules tell apart."""
    contents = path / "Contents"
    put_program(contents / "MacOS/Tiny")
    write(contents / "Info.plist", information("Tiny", identifier))
    write(contents / "PkgInfo", b"APPL????")
    write(contents / "Resources/Icon.icns", b"icns" * 1000)
    write(contents / "Resources/en.lproj/Localizable.strings", b'"a" = "b";\n')
    write(contents / "Resources/Base.lproj/Main.strings", b"")
    (contents / "Resources/Latest.icns").symlink_to("Icon.icns")
    return path


def make_framework(path, identifier="org.kestrune.TinyKit"):
    """As Sparkle's is built: a program beside the library, and an application in it."""
    name = path.stem
    version = path / "Versions/B"
    put_program(version / name, "library")
    put_program(version / "Helper", "arm64")
    write(version / "Resources/Info.plist", information(name, identifier))
    write(version / "Headers/Tiny.h", b"void tiny(void);\n")
    make_application(version / "Updater.app", f"{identifier}.Updater")
    (path / "Versions/Current").symlink_to("B")
    for link in (name, "Helper", "Resources", "Headers", "Updater.app"):
        (path / link).symlink_to(f"Versions/Current/{link}")
    return path


class SealTest(TreeTest):
    def seal(self, bundle):
        return sealing.seal(bundle)

    def check(self, *arguments):
        program = os.environ["KESTRUNE_CHECK_SEAL"]
        return subprocess.run([program, *map(str, arguments)], capture_output=True, encoding="utf-8")

    def assert_holds(self, bundle, *sdk):
        result = self.check(bundle, *sdk)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout.splitlines()

    def assert_refused(self, bundle, message, *sdk, status=1):
        result = self.check(bundle, *sdk)
        self.assertEqual((result.stdout, result.stderr), ("", f"kestrune-check-seal: {message}\n"))
        self.assertEqual(result.returncode, status)

    def assert_noticed(self, bundle, what="", statuses=(1,)):
        """In one line, whatever it says; a crash is no such status."""
        result = self.check(bundle)
        self.assertIn(result.returncode, statuses, what)
        self.assertEqual(result.stdout, "", what)
        self.assertRegex(result.stderr, rf"\Akestrune-check-seal: {bundle.name}/.+\n\Z", what)

    def change_byte(self, path, place):
        data = bytearray(path.read_bytes())
        data[place] ^= 1
        path.write_bytes(data)


class SealedApplication(SealTest):
    def setUp(self):
        super().setUp()
        self.app = make_application(self.root / "Tiny.app")
        self.contents = self.app / "Contents"
        self.program = self.contents / "MacOS/Tiny"
