"""The checker accepts what the signer sealed, and notices whatever is done to it afterwards."""

import plistlib
import struct
import unittest

from tiny_bundles import (
    IDENTIFIER,
    SealedApplication,
    information,
    make_framework,
    put_program,
    write,
)

from releasing import halves


class Seal(SealedApplication):
    def test_holds_and_tells_about_each_half(self):
        seal = self.seal(self.app)
        lines = self.assert_holds(self.app)
        self.assertEqual(len(lines), 2)
        for line, (processor, cdhash), pages in zip(lines, seal.hashes, (1, 2)):
            parts = line.split(", ")
            self.assertRegex(parts[0], rf"^{processor}: \d+ bytes$")
            words = ["for macOS 13.0", IDENTIFIER, f"cdhash {cdhash.hex()}", f"{pages} pages"]
            self.assertEqual(parts[1:], words)
        # Where there is no checker, the release's own reader says so.
        self.assertEqual(halves.lines(self.program), lines)

    def test_is_the_same_when_it_is_made_again(self):
        self.assertEqual(self.seal(self.app), self.seal(self.app))
        self.assert_holds(self.app)

    def test_is_that_of_a_bundle_by_any_path(self):
        self.seal(self.app)
        self.assert_holds(f"{self.app}/")

    def test_that_was_never_made_is_missed(self):
        self.assert_refused(self.app, "Tiny.app/Contents/_CodeSignature/CodeResources: is missing")

    def test_covers_a_program_that_never_had_a_signature(self):
        """As the linkers leave x86_64: without the load command, with room for it."""
        put_program(self.program, "x86_64")
        data = bytearray(self.program.read_bytes())
        count, size = struct.unpack_from("<II", data, 16)
        struct.pack_into("<II", data, 16, count - 1, size - 16)
        data[32 + size - 16 : 32 + size] = bytes(16)
        # Its end need not be where a signature may start.
        link_edit = data.index(b"__LINKEDIT")
        file_size = struct.unpack_from("<Q", data, link_edit + 40)[0]
        struct.pack_into("<Q", data, link_edit + 40, file_size - 3)
        write(self.program, bytes(data[:-3]))
        self.seal(self.app)
        self.assertEqual(len(self.assert_holds(self.app)), 1)

    def test_covers_a_program_for_one_processor(self):
        put_program(self.program, "arm64")
        self.seal(self.app)
        self.assertEqual(len(self.assert_holds(self.app)), 1)


class Change(SealedApplication):
    def setUp(self):
        super().setUp()
        self.seal(self.app)

    def half(self, index):
        """Where a half starts, and where its signature does."""
        data = self.program.read_bytes()
        start, size = struct.unpack_from(">II", data, 8 + 20 * index + 8)
        return start, start + data[start : start + size].index(struct.pack(">I", 0xFADE0CC0))

    def test_in_the_code_is_found_with_its_page(self):
        start, _ = self.half(1)
        self.change_byte(self.program, start + 0x1010)
        page = "page 1, from 0x1000 to 0x1720"
        self.assert_refused(
            self.app, f"Tiny.app/Contents/MacOS/Tiny: arm64 half: {page}, was changed after it was sealed"
        )

    def test_of_any_byte_of_a_program_is_found(self):
        """Between the halves there is filling, and behind a signature as well."""
        whole = self.program.read_bytes()
        (first, first_signature), (second, second_signature) = self.half(0), self.half(1)
        for place in [*range(first, first_signature, 37), *range(second, second_signature, 37)]:
            self.change_byte(self.program, place)
            # One that cannot be read any more is noticed as well.
            self.assert_noticed(self.app, place, (1, 2))
            self.program.write_bytes(whole)

    def test_of_any_byte_of_the_hashes_is_found(self):
        whole = self.program.read_bytes()
        _, signature = self.half(0)
        directory = signature + 12 + 3 * 8
        length = struct.unpack_from(">I", whole, directory + 4)[0]
        # The version may be a later one; of the flags few say something here, and some fields are spare.
        free = {*range(8, 16), 38, *range(40, 44), *range(48, 56), *range(80, 88)}
        for place in range(directory, directory + length):
            if place - directory in free:
                continue
            self.change_byte(self.program, place)
            # What stands before the hashes says where they are, and ends with the identifier.
            statuses = (1, 2) if place - directory <= 88 + len(IDENTIFIER) else (1,)
            self.assert_noticed(self.app, place - directory, statuses)
            self.program.write_bytes(whole)

    def test_in_the_information_is_found(self):
        path = self.contents / "Info.plist"
        self.change_byte(path, path.read_bytes().index(b"1.0"))
        name = "Tiny.app/Contents/Info.plist"
        half = "Tiny.app/Contents/MacOS/Tiny: x86_64 half"
        self.assert_refused(self.app, f"{name}: is not the one that was sealed with {half}")

    def test_in_a_resource_is_found(self):
        self.change_byte(self.contents / "Resources/Icon.icns", 100)
        message = "Tiny.app/Contents/Resources/Icon.icns: was changed after it was sealed"
        self.assert_refused(self.app, message)

    def test_in_the_list_of_resources_is_found(self):
        path = self.contents / "_CodeSignature/CodeResources"
        self.change_byte(path, path.read_bytes().index(b"</plist>") - 1)
        half = "Tiny.app/Contents/MacOS/Tiny: x86_64 half"
        name = "Tiny.app/Contents/_CodeSignature/CodeResources"
        self.assert_refused(self.app, f"{name}: is not the one that was sealed with {half}")

    def test_in_what_is_not_sealed_is_none(self):
        write(self.contents / "PkgInfo", b"APPLKEST")
        write(self.contents / "Resources/.DS_Store", b"")
        self.assert_holds(self.app)


class File(SealedApplication):
    def setUp(self):
        super().setUp()
        self.seal(self.app)

    def test_that_was_added_is_found_wherever_it_lies(self):
        for name in (
            "Resources/More.icns",
            "Resources/en.lproj/More.strings",
            "MacOS/more",
            "more",
            "Library/more",
            "_CodeSignature/more",
        ):
            with self.subTest(name):
                path = self.contents / name
                write(path, b"more")
                self.assert_refused(
                    self.app, f"Tiny.app/Contents/{name}: was added after the bundle was sealed"
                )
                path.unlink()
        self.assert_holds(self.app)

    def test_beside_the_contents_is_found(self):
        write(self.app / "Icon\r", b"")
        self.assert_refused(self.app, "Tiny.app/Icon?: lies outside what is sealed")

    def test_that_is_missing_is_found(self):
        for name in ("Resources/Icon.icns", "Resources/Base.lproj/Main.strings", "Resources/Latest.icns"):
            with self.subTest(name):
                path = self.contents / name
                path.rename(self.root / "kept")
                self.assert_refused(self.app, f"Tiny.app/Contents/{name}: was sealed and is missing")
                (self.root / "kept").rename(path)

    def test_of_a_language_may_be_missing(self):
        (self.contents / "Resources/en.lproj/Localizable.strings").unlink()
        self.assert_holds(self.app)

    def test_that_says_what_the_bundle_is_may_not_be_missing(self):
        (self.contents / "Info.plist").unlink()
        self.assert_refused(self.app, "Tiny.app/Contents/Info.plist: is missing")

    def test_that_is_the_program_may_not_be_missing(self):
        self.program.unlink()
        self.assert_refused(self.app, "Tiny.app/Contents/MacOS/Tiny: is missing")


class Link(SealedApplication):
    def setUp(self):
        super().setUp()
        self.link = self.contents / "Resources/Latest.icns"

    def test_to_something_else_is_found(self):
        self.seal(self.app)
        self.link.unlink()
        self.link.symlink_to("en.lproj")
        name = "Tiny.app/Contents/Resources/Latest.icns"
        self.assert_refused(self.app, f"{name}: is a link to en.lproj, and was sealed as something else")

    def test_in_the_place_of_a_file_is_found(self):
        self.seal(self.app)
        path = self.contents / "Resources/Icon.icns"
        path.unlink()
        path.symlink_to("Latest.icns")
        name = "Tiny.app/Contents/Resources/Icon.icns"
        self.assert_refused(self.app, f"{name}: is a link to Latest.icns, and was sealed as something else")

    def test_out_of_the_bundle_is_refused(self):
        for target in ("/etc/passwd", "../../../outside"):
            with self.subTest(target):
                self.link.unlink()
                self.link.symlink_to(target)
                self.seal(self.app)
                name = "Tiny.app/Contents/Resources/Latest.icns"
                self.assert_refused(self.app, f"{name}: is a link out of the bundle, to {target}")


class Identifier(SealedApplication):
    def test_of_another_bundle_is_found(self):
        write(self.contents / "Info.plist", information("Tiny", "org.kestrune.Other"))
        self.seal(self.app)
        write(self.contents / "Info.plist", information("Tiny", IDENTIFIER))
        half = "Tiny.app/Contents/MacOS/Tiny: x86_64 half"
        self.assert_refused(
            self.app, f"{half}: is signed as org.kestrune.Other, and the bundle is {IDENTIFIER}"
        )

    def test_is_wanted(self):
        self.seal(self.app)
        whole = information("Tiny", IDENTIFIER)
        for data in (
            b"nothing",
            plistlib.dumps([]),
            plistlib.dumps({"CFBundleExecutable": "Tiny"}),
            whole.replace(b"Tiny", b"Ti\0y"),
            plistlib.dumps(plistlib.loads(whole) | {"\u00e9\0": ""}, fmt=plistlib.FMT_BINARY),
        ):
            write(self.contents / "Info.plist", data)
            name = "Tiny.app/Contents/Info.plist"
            keys = "CFBundleIdentifier and CFBundleExecutable"
            self.assert_refused(self.app, f"{name}: is no property list with {keys}")

    def test_may_stand_in_a_binary_property_list(self):
        properties = {"CFBundleExecutable": "Tiny", "CFBundleIdentifier": IDENTIFIER}
        write(self.contents / "Info.plist", plistlib.dumps(properties, fmt=plistlib.FMT_BINARY))
        self.seal(self.app)
        self.assert_holds(self.app)


class NestedCode(SealedApplication):
    def setUp(self):
        super().setUp()
        self.framework = make_framework(self.contents / "Frameworks/TinyKit.framework")
        self.version = self.framework / "Versions/B"
        put_program(self.contents / "MacOS/other", "x86_64")
        self.seal(self.app)
        self.name = "Tiny.app/Contents/Frameworks/TinyKit.framework"

    def test_is_sealed_from_the_inside_out(self):
        self.assert_holds(self.app)
        self.assert_holds(self.framework)
        self.assert_holds(self.version / "Updater.app")

    def test_that_was_changed_is_found_however_deep_it_lies(self):
        self.change_byte(self.version / "Updater.app/Contents/Resources/Icon.icns", 0)
        path = f"{self.name}/Versions/B/Updater.app/Contents/Resources/Icon.icns"
        self.assert_refused(self.app, f"{path}: was changed after it was sealed")

    def test_without_a_bundle_that_was_changed_is_found(self):
        self.change_byte(self.version / "Helper", 0x350)
        path = f"{self.name}/Versions/B/Helper"
        self.assert_refused(self.app, f"{path}: page 0, from 0x0 to 0x3c0, was changed after it was sealed")

    def test_with_a_seal_of_its_own_that_is_a_new_one_is_found(self):
        self.change_byte(self.version / "Headers/Tiny.h", 0)
        self.seal(self.framework)
        self.assert_holds(self.framework)
        self.assert_refused(
            self.app, f"{self.name}: has another seal than the one that was sealed with the bundle"
        )

    def test_that_was_added_is_found(self):
        put_program(self.contents / "MacOS/more", "arm64")
        self.assert_refused(
            self.app, "Tiny.app/Contents/MacOS/more: was added after the bundle was sealed"
        )

    def test_that_is_missing_is_found(self):
        (self.contents / "MacOS/other").unlink()
        self.assert_refused(self.app, "Tiny.app/Contents/MacOS/other: was sealed and is missing")

    def test_beside_the_versions_of_a_framework_is_found(self):
        write(self.framework / "more", b"")
        self.assert_refused(self.app, f"{self.name}/more: lies outside what is sealed")

    def test_of_a_framework_needs_its_current_version(self):
        (self.framework / "Versions/Current").unlink()
        self.assert_refused(
            self.app, f"{self.name}/Versions/Current: is no link to the version that counts"
        )


if __name__ == "__main__":
    unittest.main()
