"""An item is added to an appcast, and nothing that was there is lost or changed."""

import re
import unittest
import xml.etree.ElementTree as ElementTree

from trees import TreeTest
from releasing import appcast
from releasing.steps import Failure

SPARKLE = "{http://www.andymatuschak.org/xml-namespaces/sparkle}"
OTHERS = """<?xml version="1.0" encoding="utf-8"?>
<!-- Edited by hand now and then. -->
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"
     xmlns:dc="http://purl.org/dc/elements/1.1/">
    <channel>
        <title>Kestrune &amp; friends</title>
        <item>
            <title>0.9</title>
            <description><![CDATA[<b>Größer</b> </channel>]]></description>
            <dc:creator>A</dc:creator>
            <sparkle:version>9</sparkle:version>
        </item>
        <item>
            <title>0.8</title>
            <enclosure url="https://example.org/8.zip" sparkle:version="8" length="1"/>
        </item>
    </channel>
</rss>
"""


def item(**changes):
    values = {
        "short_version": "1.0",
        "build": "10",
        "minimum_system": "13.0",
        "address": "https://example.org/Kestrune-1.0.zip",
        "length": 1234,
        "signature": "c2lnbmVk",
        "date": "Sat, 21 Nov 2026 12:00:00 GMT",
    }
    return appcast.Item(**{**values, **changes})


class AppcastTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.path = self.root / "appcast.xml"

    def items(self):
        root = ElementTree.parse(self.path).getroot()
        self.assertEqual((root.tag, root.get("version"), len(root)), ("rss", "2.0", 1))
        return root.findall("channel/item")

    def assert_refused(self, text, reason, **changes):
        self.path.write_text(text, encoding="utf-8")
        with self.assertRaisesRegex(Failure, reason):
            appcast.add(self.path, item(**changes))
        self.assertEqual(self.path.read_text(encoding="utf-8"), text)


class NewAppcast(AppcastTest):
    def test_has_one_item_with_everything_that_sparkle_reads(self):
        appcast.add(self.path, item())
        [only] = self.items()
        self.assertEqual(only.findtext("title"), "1.0")
        self.assertEqual(only.findtext("pubDate"), "Sat, 21 Nov 2026 12:00:00 GMT")
        self.assertEqual(only.findtext(f"{SPARKLE}version"), "10")
        self.assertEqual(only.findtext(f"{SPARKLE}shortVersionString"), "1.0")
        self.assertEqual(only.findtext(f"{SPARKLE}minimumSystemVersion"), "13.0")
        self.assertEqual(
            only.find("enclosure").attrib,
            {
                "url": "https://example.org/Kestrune-1.0.zip",
                "length": "1234",
                "type": "application/octet-stream",
                f"{SPARKLE}edSignature": "c2lnbmVk",
            },
        )

    def test_is_well_formed_whatever_the_address_holds(self):
        address = "https://example.org/a?b=1&c=<\"'>"
        appcast.add(self.path, item(address=address, short_version="1 & <2>"))
        [only] = self.items()
        self.assertEqual(only.find("enclosure").get("url"), address)
        self.assertEqual(only.findtext("title"), "1 & <2>")


class PresentAppcast(AppcastTest):
    def test_keeps_every_byte_and_gets_the_item_last(self):
        self.path.write_text(OTHERS, encoding="utf-8")
        appcast.add(self.path, item())
        text = self.path.read_text(encoding="utf-8")
        self.assertEqual(text.replace(str(item()), ""), OTHERS)
        self.assertEqual([each.findtext("title") for each in self.items()], ["0.9", "0.8", "1.0"])

    def test_takes_one_release_after_the_other(self):
        for build in ("1", "2", "10"):
            appcast.add(self.path, item(build=build))
        self.assertEqual([each.findtext(f"{SPARKLE}version") for each in self.items()], ["1", "2", "10"])

    def test_may_be_in_one_line(self):
        text = re.sub(r">\s+<", "><", OTHERS).strip()
        self.path.write_text(text, encoding="utf-8")
        appcast.add(self.path, item())
        self.assertEqual(len(self.items()), 3)
        self.assertTrue(self.path.read_text(encoding="utf-8").startswith(text[: text.rindex("</channel>")]))

    def test_keeps_its_line_ends(self):
        self.path.write_bytes(OTHERS.replace("\n", "\r\n").encode())
        appcast.add(self.path, item())
        self.assertEqual(self.path.read_bytes().count(b"\r\n"), OTHERS.count("\n"))
        self.assertEqual(len(self.items()), 3)

    def test_leaves_no_other_file_behind(self):
        appcast.add(self.path, item())
        self.assertEqual([path.name for path in self.root.iterdir()], ["appcast.xml"])


class RefusedItem(AppcastTest):
    def test_has_a_build_that_is_there_or_too_low(self):
        for build in ("9", "8.9", "8", "9.0", "09"):
            with self.subTest(build=build):
                self.assert_refused(OTHERS, "has build 9 already", build=build)

    def test_would_be_compared_with_what_is_no_number(self):
        text = OTHERS.replace("<sparkle:version>9<", "<sparkle:version>nine<")
        self.assert_refused(text, "'nine' is not made of numbers")
        self.assert_refused(OTHERS.replace('sparkle:version="8"', ""), "'' is not made of numbers")

    def test_would_land_in_a_comment(self):
        self.assert_refused(OTHERS + "<!-- </channel> -->\n", "ends in a way that is not understood")

    def test_has_no_appcast_to_go_to(self):
        self.assert_refused("<rss><channel>", "is no appcast")
        self.assert_refused("<rss></rss>", "has no channel")
        self.assert_refused('<rss version="2.0"><channel></channel></rss>', "unbound prefix")

    def test_would_go_to_a_file_that_is_no_text(self):
        self.path.write_bytes(OTHERS.encode("utf-16"))
        with self.assertRaisesRegex(Failure, "cannot be read"):
            appcast.add(self.path, item())


class Signature(unittest.TestCase):
    def test_is_found_in_what_sign_update_prints(self):
        output = 'sparkle:edSignature="YWJj+/==" length="12"\n'
        self.assertEqual(appcast.signature_in(output, 12), "YWJj+/==")

    def test_of_another_length_is_refused(self):
        with self.assertRaisesRegex(Failure, "signed 11 bytes of an archive of 12"):
            appcast.signature_in('sparkle:edSignature="YQ==" length="11"', 12)

    def test_that_is_missing_is_refused(self):
        with self.assertRaisesRegex(Failure, "printed no edSignature: 'ERROR! no key'"):
            appcast.signature_in("ERROR!\nno key", 12)


if __name__ == "__main__":
    unittest.main()
