"""The signer seals nested code first, changes nothing else, and refuses what it cannot seal.

Whether a seal holds is asked in tests/macho, by another program.
"""

import plistlib
import stat
import struct
import unittest

from tiny_bundles import PROGRAMS, SealTest, information, make_application, make_framework, put_program, write

from releasing import halves
from releasing.steps import Failure


def files_of(app):
    """What CodeResources has under a path, for systems of today and for older ones."""
    sealed = plistlib.loads((app / "Contents/_CodeSignature/CodeResources").read_bytes())
    return sealed["files2"], sealed["files"]


class Sealing(SealTest):
    def setUp(self):
        super().setUp()
        self.app = make_application(self.root / "Tiny.app")
        self.contents = self.app / "Contents"

    def assert_refused(self, path, message):
        with self.assertRaises(Failure) as caught:
            self.seal(self.app)
        self.assertEqual(str(caught.exception), f"{path} {message}")

    def test_lists_files_and_links_and_neither_the_program_nor_what_is_sealed_elsewhere(self):
        self.seal(self.app)
        files, old_files = files_of(self.app)
        names = ["Base.lproj/Main.strings", "Icon.icns", "Latest.icns", "en.lproj/Localizable.strings"]
        self.assertEqual(sorted(files), [f"Resources/{name}" for name in names])
        self.assertEqual(files["Resources/Latest.icns"], {"symlink": "Icon.icns"})
        self.assertEqual(sorted(old_files), [f"Resources/{name}" for name in names if name != "Latest.icns"])

    def test_lets_translations_be_left_out_but_not_the_base(self):
        self.seal(self.app)
        files, _ = files_of(self.app)
        optional = [name for name, seal in files.items() if seal.get("optional")]
        self.assertEqual(optional, ["Resources/en.lproj/Localizable.strings"])

    def test_names_nested_code_by_its_seal(self):
        framework = make_framework(self.contents / "Frameworks/TinyKit.framework")
        self.seal(self.app)
        files, old_files = files_of(self.app)
        name = "Frameworks/TinyKit.framework"
        self.assertEqual([path for path in files if path.startswith("Frameworks")], [name])
        self.assertNotIn(name, old_files)
        seal = self.seal(framework)
        self.assertEqual(files[name], {"cdhash": seal.cdhash, "requirement": seal.requirement})
        self.assertEqual(seal.requirement.count("cdhash H"), 2)

    def test_keeps_who_may_run_the_program(self):
        program = self.contents / "MacOS/Tiny"
        program.chmod(0o750)
        self.seal(self.app)
        self.assertEqual(stat.S_IMODE(program.stat().st_mode), 0o750)
        self.assertEqual([path.name for path in program.parent.iterdir()], ["Tiny"])

    def test_leaves_nothing_of_a_seal_before(self):
        write(self.contents / "_CodeSignature/CodeRequirements", b"of another signature")
        self.seal(self.app)
        names = [path.name for path in (self.contents / "_CodeSignature").iterdir()]
        self.assertEqual(names, ["CodeResources"])

    def test_says_in_the_load_commands_how_large_the_signature_is(self):
        """A system maps what __LINKEDIT says, and the signature is the end of it."""
        put_program(self.contents / "MacOS/Tiny", "arm64")
        before = (PROGRAMS / "arm64.macho").stat().st_size
        self.seal(self.app)
        data = (self.contents / "MacOS/Tiny").read_bytes()
        start = data.index(b"__LINKEDIT")
        offset, size = struct.unpack_from("<QQ", data, start + 32)
        self.assertEqual(offset + size, len(data))
        self.assertGreater(len(data), before)

    def test_refuses_a_program_without_room_for_a_signature(self):
        path = self.contents / "MacOS/Tiny"
        data = (PROGRAMS / "arm64.macho").read_bytes()
        command = struct.pack("<II", 0x1D, 16)
        self.assertEqual(data.count(command), 1)
        write(path, data.replace(command, struct.pack("<II", 0x2A, 16)))
        self.assert_refused(path, "has no room for a code signature (arm64); link with -headerpad")

    def test_refuses_a_program_for_another_processor(self):
        path = self.contents / "MacOS/Tiny"
        data = bytearray((PROGRAMS / "arm64.macho").read_bytes())
        struct.pack_into("<I", data, 4, 0x01000012)
        write(path, bytes(data))
        self.assert_refused(path, "is a program for no processor of macOS 13 (0xfeedfacf, 0x1000012)")

    def test_refuses_what_lies_among_code_and_is_none(self):
        for name in ("MacOS/notes.txt", "notes.txt", "Helpers/notes"):
            with self.subTest(name):
                write(self.contents / name, b"Nothing that could be run.\n" * 3)
                self.assert_refused(self.contents / name, "lies among code and is no Mach-O file")
                (self.contents / name).unlink()

    def test_refuses_a_bundle_that_does_not_say_what_it_is(self):
        path = self.contents / "Info.plist"
        write(path, plistlib.dumps({"CFBundleExecutable": "Tiny"}))
        self.assert_refused(path, "has no CFBundleIdentifier")
        write(path, information("Tiny", 7))
        self.assert_refused(path, "has no CFBundleIdentifier")
        path.unlink()
        self.assert_refused(path, "is missing: it would say what is to be sealed")

    def test_refuses_a_bundle_without_its_program(self):
        (self.contents / "MacOS/Tiny").unlink()
        self.assert_refused(self.contents / "MacOS/Tiny", "is missing")

    def test_refuses_a_framework_without_a_current_version(self):
        framework = make_framework(self.contents / "Frameworks/TinyKit.framework")
        (framework / "Versions/Current").unlink()
        self.assert_refused(
            framework / "Versions/Current", "is no link to the version of the framework that counts"
        )


class Lines(SealTest):
    """What a reader of a signature says of one that it cannot read."""

    def setUp(self):
        super().setUp()
        self.program = self.root / "program"
        put_program(self.program, "arm64")
        self.seal(self.program)
        self.sealed = self.program.read_bytes()
        self.start = self.sealed.index(struct.pack(">I", 0xFADE0CC0))

    def assert_refused(self, data, message):
        write(self.program, data)
        with self.assertRaises(Failure) as caught:
            halves.lines(self.program)
        self.assertEqual(str(caught.exception), f"{self.program} {message}")

    def test_tell_of_a_signature(self):
        (line,) = halves.lines(self.program)
        self.assertRegex(line, r"^arm64: \d+ bytes, for macOS 13.0, program, cdhash [0-9a-f]{40}, 1 pages$")

    def test_are_none_without_a_signature(self):
        self.assert_refused((PROGRAMS / "arm64.macho").read_bytes(), "has no code signature")

    def test_are_none_of_a_signature_that_ends_early(self):
        self.assert_refused(self.sealed[: self.start + 16], "has no whole code signature")

    def test_are_none_of_another_hash(self):
        directory = self.sealed.index(struct.pack(">I", 0xFADE0C02))
        changed = self.sealed[: directory + 37] + b"\1" + self.sealed[directory + 38 :]
        self.assert_refused(changed, "is signed with another hash than SHA-256")


if __name__ == "__main__":
    unittest.main()
