"""A feed is read for the builds that it has, and for whether generate_appcast did what it was for."""

import pathlib
import re
import unittest

from trees import TreeTest
from releasing import feed
from releasing.information import Versions
from releasing.steps import Failure

OLD = """<?xml version="1.0" encoding="utf-8"?>
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
SIGNATURE = "QUJD" * 21 + "QQ=="
ITEM = f"""        <item>
            <title>1.0</title>
            <sparkle:version>10</sparkle:version>
            <sparkle:shortVersionString>1.0</sparkle:shortVersionString>
            <description><![CDATA[- New]]></description>
            <enclosure url="https://example.org/Kestrune-1.0.zip" length="7"
                       sparkle:edSignature="{SIGNATURE}"/>
        </item>
"""
NEW = OLD.replace("        <item>\n", f"{ITEM}        <item>\n", 1)


class FeedTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.path = self.root / "appcast.xml"
        self.path.write_text(OLD, encoding="utf-8")


class Newer(FeedTest):
    def assert_refused(self, reason, build="10"):
        with self.assertRaisesRegex(Failure, reason):
            feed.require_newer(self.path, build)

    def test_is_a_build_above_all_that_are_there(self):
        for build in ("10", "9.0.1", "9.1"):
            feed.require_newer(self.path, build)

    def test_is_any_build_where_there_is_no_feed(self):
        feed.require_newer(self.root / "none.xml", "1")

    def test_is_no_build_that_is_there_or_below(self):
        for build in ("9", "8.9", "8", "9.0", "09"):
            with self.subTest(build=build):
                self.assert_refused("has build 9 already and this one is .*; raise CFBundleVersion", build)

    def test_is_unknown_where_one_is_no_number(self):
        self.path.write_text(OLD.replace("<sparkle:version>9<", "<sparkle:version>nine<"), encoding="utf-8")
        self.assert_refused("'nine' is not made of numbers")
        self.path.write_text(OLD.replace('sparkle:version="8"', ""), encoding="utf-8")
        self.assert_refused("'' is not made of numbers")

    def test_is_unknown_in_what_is_no_feed(self):
        for text, reason in (
            ("<rss><channel>", "is no appcast"),
            ("<rss></rss>", "has no channel"),
            ('<rss version="2.0"><channel></channel><a:b/></rss>', "unbound prefix"),
            ('<?xml version="1.0" encoding="no such"?><rss/>', "is no appcast"),
        ):
            self.path.write_text(text, encoding="utf-8")
            self.assert_refused(reason)
        self.path.write_bytes(OLD.encode("utf-32"))
        self.assert_refused("is no appcast")


class Entry(FeedTest):
    def setUp(self):
        super().setUp()
        self.folder = self.root / "updates"
        self.folder.mkdir()
        self.archive = self.folder / "Kestrune-1.0.zip"
        self.archive.write_bytes(b"7 bytes")
        made = feed.Feed(self.path, self.folder, pathlib.Path("bin"))
        steps = made.steps(
            Versions("1.0", "10", "13.0"), self.archive, self.root / "1.0.md", "https://example.org"
        )
        self.written, self.judge = made.entered, steps[-1]

    def write_feed(self, expression="", replacement=""):
        text, count = re.subn(expression, replacement, NEW, count=1, flags=re.DOTALL)
        self.assertEqual(count, 1, expression)
        self.written.write_text(text, encoding="utf-8")

    def assert_refused(self, message, expression, replacement=""):
        with self.subTest(expression), self.assertRaises(Failure) as caught:
            self.write_feed(expression, replacement)
            self.judge.run()
        self.assertEqual(str(caught.exception), f"generate_appcast {message}")

    def test_is_as_it_has_to_be(self):
        self.write_feed()
        self.judge.run()

    def test_may_say_its_versions_in_attributes(self):
        self.write_feed(
            "<sparkle:version>10.*?<enclosure ",
            '<description>New</description><enclosure sparkle:version="10" sparkle:shortVersionString="1.0" ',
        )
        self.judge.run()

    def test_that_is_missing_is_noticed_and_so_is_one_that_was_lost(self):
        message = "was to add build 10 to ['8', '9'] and left"
        self.assert_refused(f"{message} ['8', '9']", "<item>.*?</item>")
        self.assert_refused(f"{message} ['10', '9']", "<item>\\s*<title>0.8.*?</item>")
        self.assert_refused(f"{message} ['11', '8', '9']", "<sparkle:version>10<", "<sparkle:version>11<")
        self.assert_refused(f"{message} ['10', '10', '8', '9']", "<item>.*?</item>", "\\g<0>\\g<0>")

    def test_of_nothing_at_all_is_noticed(self):
        with self.assertRaisesRegex(Failure, re.escape("to ['8', '9'] and left []")):
            self.judge.run()

    def test_without_a_signature_is_noticed(self):
        for signature in ("", "QUJD", "!" + SIGNATURE):
            message = (
                f"left build 10 without a signature that could be checked ({signature!r}); is the private "
            )
            self.assert_refused(
                f"{message}key of generate_keys in this keychain?", re.escape(SIGNATURE), signature
            )

    def test_of_another_archive_is_noticed(self):
        self.assert_refused("wrote the length '8' instead of '7'", 'length="7"', 'length="8"')
        address = "https://example.org/Kestrune-1.0.zip"
        self.assert_refused(f"wrote the address '' instead of '{address}'", f'url="{address}"')
        self.assert_refused(
            "wrote the version '1' instead of '1.0'", ">1.0</sparkle:short", ">1</sparkle:short"
        )
        self.assert_refused("wrote the version '' instead of '1.0'", "<sparkle:short.*?</sparkle:short[^>]*>")

    def test_without_notes_is_noticed(self):
        self.assert_refused("left build 10 without its release notes", "<description>.*?</description>")
        self.assert_refused("left build 10 without its release notes", "- New")


if __name__ == "__main__":
    unittest.main()
