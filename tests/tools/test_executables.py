"""Every program of a bundle is found by what it is, and held to the processors and the system."""

import plistlib
import struct
import unittest

from tiny_bundles import PROGRAMS, SealTest, make_application, make_framework, put_program, write

from releasing import executables
from releasing.steps import Failure

BUILD_VERSION, VERSION_MIN, UUID = 0x32, 0x24, 0x1B


def program(kind):
    return bytearray((PROGRAMS / f"{kind}.macho").read_bytes())


def for_system(data, major, command=BUILD_VERSION):
    """The program for another system, as newer linkers say it or as those before macOS 10.14 did."""
    place = data.index(struct.pack("<I", BUILD_VERSION))
    size = struct.unpack_from("<I", data, place + 4)[0]
    if command == BUILD_VERSION:
        struct.pack_into("<I", data, place + 12, major << 16)
    else:
        struct.pack_into("<IIII", data, place, command, 16, major << 16, 0)
        struct.pack_into("<II", data, place + 16, UUID, size - 16)
        struct.pack_into("<I", data, 16, struct.unpack_from("<I", data, 16)[0] + 1)
    return data


def universal(*halves):
    """A file with these halves, at the places that a page of memory asks for."""
    table, body, start = struct.pack(">II", 0xCAFEBABE, len(halves)), b"", 0x4000
    for half in halves:
        kind, subtype = struct.unpack_from("<II", half, 4)
        table += struct.pack(">IIIII", kind, subtype, start + len(body), len(half), 14)
        body += bytes(half) + bytes(-len(half) % 0x4000)
    return table.ljust(start, b"\0") + body


class Executables(SealTest):
    def setUp(self):
        super().setUp()
        self.app = make_application(self.root / "Kestrune.app")
        self.contents = self.app / "Contents"
        (self.contents / "MacOS/Tiny").rename(self.contents / "MacOS/Kestrune")
        self.say_system("13.0")

    def say_system(self, version):
        properties = {"CFBundleShortVersionString": "1.0", "CFBundleVersion": "1"}
        information = plistlib.dumps({**properties, "LSMinimumSystemVersion": version})
        write(self.contents / "Info.plist", information)

    def assert_refused(self, path, message):
        with self.assertRaises(Failure) as caught:
            executables.require_all(self.app)
        self.assertEqual(str(caught.exception), f"{self.contents / path} {message}")

    def put(self, path, data):
        write(self.contents / path, bytes(data))

    def test_for_both_processors_and_no_later_system_are_accepted(self):
        put_program(self.contents / "Frameworks/Kit.framework/Versions/B/Kit")
        old = universal(
            for_system(program("x86_64"), 10, VERSION_MIN), for_system(program("arm64"), 12, BUILD_VERSION)
        )
        self.put("Frameworks/Kit.framework/Versions/B/Helper", old)
        executables.require_all(self.app)

    def test_are_found_wherever_they_lie_and_whatever_they_are_called(self):
        for path in (
            "Resources/picture.png",
            "Frameworks/Kit.framework/Versions/B/Resources/a/b",
            "notes.txt",
        ):
            with self.subTest(path):
                self.put(path, program("arm64"))
                self.assert_refused(path, "is not for x86_64; the application is for arm64 and x86_64")
                (self.contents / path).unlink()
        executables.require_all(self.app)

    def test_of_a_framework_are_found(self):
        framework = make_framework(self.contents / "Frameworks/TinyKit.framework")
        put_program(framework / "Versions/B/TinyKit")
        helper = "Frameworks/TinyKit.framework/Versions/B/Helper"
        self.assert_refused(helper, "is not for x86_64; the application is for arm64 and x86_64")

    def test_for_one_processor_are_refused(self):
        self.put("MacOS/Kestrune", program("x86_64"))
        self.assert_refused("MacOS/Kestrune", "is not for arm64; the application is for arm64 and x86_64")

    def test_for_a_later_system_are_refused_whichever_half_it_is(self):
        for later, other in (("arm64", "x86_64"), ("x86_64", "arm64")):
            data = universal(program(other), for_system(program(later), 14))
            self.put("Frameworks/library", data)
            self.assert_refused(
                "Frameworks/library", f"is for macOS 14.0 ({later}), and Info.plist says 13.0"
            )

    def test_for_a_later_system_are_refused_however_they_say_it(self):
        self.put(
            "Frameworks/library", universal(program("arm64"), for_system(program("x86_64"), 14, VERSION_MIN))
        )
        self.assert_refused("Frameworks/library", "is for macOS 14.0 (x86_64), and Info.plist says 13.0")

    def test_of_ours_are_for_the_very_system_that_is_said(self):
        for version in ("12.5", "14.0"):
            self.say_system(version)
            message = f"is for macOS 13.0 (x86_64), and Info.plist says {version}"
            self.assert_refused("MacOS/Kestrune", message)
        self.say_system("13")
        executables.require_all(self.app)

    def test_that_say_no_system_are_refused(self):
        data = program("arm64")
        place = data.index(struct.pack("<I", BUILD_VERSION))
        struct.pack_into("<I", data, place, UUID)
        self.put("Frameworks/library", data)
        self.assert_refused("Frameworks/library", "does not say which macOS it is for (arm64)")

    def test_for_processors_of_32_bits_are_refused(self):
        data = program("x86_64")
        struct.pack_into("<II", data, 0, 0xFEEDFACE, 7)
        self.put("Frameworks/library", data)
        self.assert_refused(
            "Frameworks/library", "is a program for no processor of macOS 13 (0xfeedface, 0x7)"
        )

    def test_that_are_not_whole_are_refused(self):
        without_commands = struct.pack("<IIIIIIII", 0xFEEDFACF, 0x0100000C, 0, 2, 0, 0, 0, 0)
        cut_off = (program("arm64")[:20], program("universal")[:30], program("universal")[:100])
        for data in (*cut_off, without_commands):
            self.put("Frameworks/library", data)
            self.assert_refused("Frameworks/library", "begins as a program does and is none")

    def test_are_no_files_that_only_look_like_text_and_no_links(self):
        write(self.contents / "Resources/empty", b"")
        write(self.contents / "Resources/short", b"\xcf\xfa\xed")
        (self.contents / "Resources/link").symlink_to(PROGRAMS / "arm64.macho")
        executables.require_all(self.app)


if __name__ == "__main__":
    unittest.main()
