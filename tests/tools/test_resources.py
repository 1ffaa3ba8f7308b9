"""Resources that macOS would not understand, and pictures that are not those of their drawings, are found."""

import plistlib
import struct
import unittest
import zlib

from trees import REPOSITORY, TreeTest
from checks import icns, png, renderings, resources

FOLDER = renderings.FOLDER
LICENSE = "MIT License\n\nCopyright (c) 2030 Some contributors\n"
DRAWINGS = {
    name: f"<svg>{name}</svg>".encode()
    for name in (renderings.MENU_BAR_ICON, renderings.APPLICATION_ICON, renderings.SMALL_APPLICATION_ICON)
}
PROPERTIES = {
    **resources.PROPERTIES,
    "CFBundleShortVersionString": "1.2.3",
    "CFBundleVersion": "45",
    "NSHumanReadableCopyright": "© 2030 Some contributors",
}
CLEAR, BLACK, RED = bytes(4), b"\0\0\0\xff", b"\xff\0\0\xff"


def picture(drawing, width, height=None, ink=BLACK, header=png.EIGHT_BIT_RGBA, scanline_filter=0):
    """A PNG whose first pixel has the given colour and whose others are clear."""
    height = width if height is None else height
    rows = [bytes([scanline_filter]) + (CLEAR if y else ink) + CLEAR * (width - 1) for y in range(height)]
    data = png.assemble(
        [
            (b"IHDR", struct.pack(">II5B", width, height, *header)),
            (b"IDAT", zlib.compress(b"".join(rows))),
            (b"IEND", b""),
        ]
    )
    return png.with_text(data, renderings.KEYWORD, renderings.origin(drawing, DRAWINGS[drawing]))


def icon_entries():
    return {kind: picture(*rendering) for kind, rendering in renderings.ICON_ENTRIES.items()}


class ResourcesTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.files = {
            **DRAWINGS,
            **{name: picture(*rendering) for name, rendering in renderings.PICTURES.items()},
            renderings.ICON_FILE: icns.write(icon_entries()),
            "Info.plist": plistlib.dumps(PROPERTIES),
        }

    def check_resources(self, changes=None):
        folder = self.root / FOLDER
        folder.mkdir(parents=True)
        for name, contents in (self.files | (changes or {})).items():
            if contents is not None:
                (folder / name).write_bytes(contents)
        return self.run_check(resources, {"LICENSE": LICENSE})

    def assert_finds(self, changes, *beginnings):
        found = [str(finding) for finding in self.check_resources(changes).findings]
        self.assertEqual(len(found), len(beginnings), found)
        for finding, beginning in zip(found, beginnings):
            self.assertTrue(finding.startswith(f"{FOLDER}{beginning}"), f"{finding!r}: not {beginning!r}")

    def assert_finds_in_properties(self, changes, *beginnings):
        properties = {key: value for key, value in (PROPERTIES | changes).items() if value is not None}
        self.assert_finds(
            {"Info.plist": plistlib.dumps(properties)}, *[f"/Info.plist:1: {text}" for text in beginnings]
        )


class Resources(ResourcesTest):
    def test_pass_when_everything_is_right(self):
        result = self.check_resources()
        self.assertEqual((result.findings, result.examined), ([], "8 files"))

    def test_find_files_that_are_missing(self):
        changes = {"MenuBarIcon@2x.png": None, "Info.plist": None, "AppIcon.icns": None, "AppIcon.svg": None}
        names = sorted(changes)
        self.assert_finds(changes, *[f":1: {name} is missing" for name in names])


class PropertyList(ResourcesTest):
    def test_find_what_is_no_property_list(self):
        self.assert_finds({"Info.plist": b"<plist><dict><key>A</dict>"}, "/Info.plist:1: is no property list")

    def test_find_a_property_list_that_is_no_dictionary(self):
        self.assert_finds({"Info.plist": plistlib.dumps(["APPL"])}, "/Info.plist:1: is no dictionary")

    def test_find_a_missing_key(self):
        self.assert_finds_in_properties({"CFBundleIdentifier": None}, "CFBundleIdentifier is missing")

    def test_find_other_values_and_types(self):
        changes = {"CFBundlePackageType": "BNDL", "LSMinimumSystemVersion": 13.0, "LSUIElement": 1}
        self.assert_finds_in_properties(
            changes,
            "CFBundlePackageType is 'BNDL'",
            "LSMinimumSystemVersion is 13.0",
            "LSUIElement is 1",
        )

    def test_find_versions_that_are_no_strings_of_numbers(self):
        changes = {"CFBundleShortVersionString": "1.0 beta", "CFBundleVersion": 45}
        self.assert_finds_in_properties(
            changes, "CFBundleShortVersionString is '1.0 beta'", "CFBundleVersion is 45"
        )

    def test_find_another_copyright_than_the_license_has(self):
        changes = {"NSHumanReadableCopyright": "© 2029 Some contributors"}
        self.assert_finds_in_properties(changes, "NSHumanReadableCopyright is '© 2029 Some contributors'")


class Pictures(ResourcesTest):
    def test_find_another_size(self):
        changes = {"MenuBarIcon.png": picture("MenuBarIcon.svg", 20, 21)}
        self.assert_finds(changes, "/MenuBarIcon.png:1: is 20×21 pixels, not 20×20")

    def test_find_pictures_of_a_drawing_that_changed(self):
        self.assert_finds(
            {"MenuBarIcon.svg": b"<svg>Changed</svg>"},
            "/MenuBarIcon.png:1: was not rendered from MenuBarIcon.svg as it is now",
            "/MenuBarIcon@2x.png:1: was not rendered from MenuBarIcon.svg as it is now",
        )

    def test_find_a_picture_that_does_not_know_its_drawing(self):
        header, _, *others = png.chunks(picture("AppIcon.svg", 256))
        changes = {"AppIcon.png": png.assemble([header, *others])}
        self.assert_finds(changes, "/AppIcon.png:1: was not rendered from AppIcon.svg")

    def test_find_colours_in_a_template(self):
        changes = {"MenuBarIcon@2x.png": picture("MenuBarIcon.svg", 40, ink=RED)}
        self.assert_finds(changes, "/MenuBarIcon@2x.png:1: has colours")

    def test_find_a_template_with_nothing_on_it(self):
        changes = {"MenuBarIcon.png": picture("MenuBarIcon.svg", 20, ink=CLEAR)}
        self.assert_finds(changes, "/MenuBarIcon.png:1: has no fully opaque")

    def test_find_a_template_without_alpha(self):
        changes = {"MenuBarIcon.png": picture("MenuBarIcon.svg", 20, header=(8, 2, 0, 0, 0))}
        self.assert_finds(changes, "/MenuBarIcon.png:1: does not have red, green, blue and alpha")

    def test_find_broken_files(self):
        whole = picture("AppIcon.svg", 256)
        damaged = whole[:40] + bytes([whole[40] ^ 1]) + whole[41:]
        self.assert_finds({"AppIcon.png": damaged}, "/AppIcon.png:1: has a chunk with a wrong checksum")

    def test_find_files_that_are_cut_off(self):
        self.assert_finds({"AppIcon.png": picture("AppIcon.svg", 256)[:-6]}, "/AppIcon.png:1: is cut off")

    def test_find_files_of_another_kind(self):
        self.assert_finds({"AppIcon.png": b"GIF89a"}, "/AppIcon.png:1: is no PNG")


class Icon(ResourcesTest):
    def test_find_what_is_no_container(self):
        self.assert_finds({"AppIcon.icns": b"icon"}, "/AppIcon.icns:1: is no icns file")

    def test_find_a_wrong_length(self):
        changes = {"AppIcon.icns": icns.write(icon_entries()) + b"\0"}
        self.assert_finds(changes, "/AppIcon.icns:1: does not have the length that it says")

    def test_find_an_entry_that_reaches_beyond_the_file(self):
        data = bytearray(icns.write({"icp4": picture("AppIcon-small.svg", 16)}))
        data[15] += 1
        self.assert_finds({"AppIcon.icns": bytes(data)}, "/AppIcon.icns:1: has an entry that does not end")

    def test_find_an_entry_that_is_there_twice(self):
        once = icns.write({"icp4": b"A"})[8:]
        data = b"icns" + struct.pack(">I", 8 + 2 * len(once)) + once + once
        self.assert_finds({"AppIcon.icns": data}, "/AppIcon.icns:1: holds icp4 twice")

    def test_find_missing_sizes(self):
        entries = icon_entries()
        del entries["ic10"]
        self.assert_finds({"AppIcon.icns": icns.write(entries)}, "/AppIcon.icns:1: ic10 is missing")

    def test_find_a_picture_of_another_size_than_its_type(self):
        changes = {"AppIcon.icns": icns.write(icon_entries() | {"ic07": picture("AppIcon.svg", 64)})}
        self.assert_finds(changes, "/AppIcon.icns:1: ic07 is 64×64 pixels, not 128×128")

    def test_find_pictures_of_a_drawing_that_changed(self):
        kinds = ("ic11", "ic12", "icp4", "icp5")
        message = "was not rendered from AppIcon-small.svg as it is now"
        changes = {"AppIcon-small.svg": b"<svg>Changed</svg>"}
        self.assert_finds(changes, *[f"/AppIcon.icns:1: {kind} {message}" for kind in kinds])


class Png(unittest.TestCase):
    def test_undoes_every_filter(self):
        """The differences that each filter leaves of two lines of two pixels, worked out by hand."""
        lines = [(10, 20, 30, 40, 50, 60, 70, 80), (11, 22, 33, 44, 55, 66, 77, 88)]
        second = {
            0: (11, 22, 33, 44, 55, 66, 77, 88),
            1: (11, 22, 33, 44, 44, 44, 44, 44),
            2: (1, 2, 3, 4, 5, 6, 7, 8),
            3: (6, 12, 18, 24, 25, 25, 26, 26),
            4: (1, 2, 3, 4, 5, 6, 7, 8),
        }
        for method, differences in second.items():
            packed = zlib.compress(bytes([0, *lines[0], method, *differences]))
            chunks = [(b"IHDR", struct.pack(">II5B", 2, 2, *png.EIGHT_BIT_RGBA)), (b"IDAT", packed)]
            expected = [[line[:4], line[4:]] for line in lines]
            self.assertEqual(png.pixels(chunks), expected, f"filter {method}")

    def test_refuses_pixels_that_are_not_as_the_header_says(self):
        header = (b"IHDR", struct.pack(">II5B", 1, 1, *png.EIGHT_BIT_RGBA))
        for data, message in (
            (zlib.compress(bytes(6)), "has more or fewer pixels"),
            (b"no stream", "do not unpack"),
            (zlib.compress(b"\5" + bytes(4)), "unknown filter"),
        ):
            with self.assertRaisesRegex(png.NotReadable, message):
                png.pixels([header, (b"IDAT", data)])


class Committed(unittest.TestCase):
    def test_menu_bar_icons_have_the_same_shape_at_both_resolutions(self):
        """Each pixel at 1x is about the mean of the four that cover it at 2x."""
        rows = {}
        for name in renderings.TEMPLATES:
            data = (REPOSITORY / FOLDER / name).read_bytes()
            rows[name] = [[pixel[3] for pixel in row] for row in png.pixels(png.chunks(data))]
        small, large = (rows[name] for name in renderings.TEMPLATES)
        for y in range(20):
            for x in range(20):
                block = [large[2 * y + dy][2 * x + dx] for dy in (0, 1) for dx in (0, 1)]
                self.assertAlmostEqual(small[y][x], sum(block) / 4, delta=24, msg=f"at {x}, {y}")


if __name__ == "__main__":
    unittest.main()
