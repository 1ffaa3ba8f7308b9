"""tools/release does every step of a release in order and publishes nothing, seen with stand-ins."""

import os
import shlex
import shutil
import unittest
import xml.etree.ElementTree as ElementTree
import zipfile

from releases import (
    AD_HOC,
    DOWNLOAD_URL,
    FEED_URL,
    PUBLIC_KEY,
    REAL_IDENTITY,
    SIGNED,
    UPDATES,
    ReleaseToolTest,
)

BUNDLE = "build/mac/Kestrune.app"
RELEASE = "out/release"
ARCHIVE, IMAGE, SYMBOLS = (f"{RELEASE}/Kestrune-0.1.0{suffix}" for suffix in (".zip", ".dmg", ".dSYM.zip"))
LOG = f"{RELEASE}/notarization-log.json"
MAKING = f"{RELEASE}/making"
MADE_ARCHIVE = f"{MAKING}/updates/Kestrune-0.1.0.zip"
MADE_IMAGE = f"{MAKING}/Kestrune-0.1.0.dmg"
MADE_FEED = f"{MAKING}/updates/appcast.xml"
NOTARIZATION = f"{MAKING}/notarization.zip"
ZIP = ["ditto", "-c", "-k", "--sequesterRsrc", "--keepParent", BUNDLE]

CHECKOUT = [["git", "status", "--porcelain"], ["git", "tag", "--points-at", "HEAD"]]
SETUP = ["tools/setup", "app"]
APP = ["tools/app", "--system", "Darwin"]
BEGINNING = [
    ["rm", "-rf", MAKING, LOG, ARCHIVE, IMAGE, SYMBOLS],
    ["mkdir", "-p", f"{MAKING}/updates"],
]
FILLED_IMAGE = [
    ["mkdir", "-p", f"{MAKING}/image"],
    ["ditto", "--noextattr", "--noqtn", BUNDLE, f"{MAKING}/image/Kestrune.app"],
    ["ln", "-s", "/Applications", f"{MAKING}/image/Applications"],
    [
        *["hdiutil", "create", "-volname", "Kestrune", "-srcfolder", f"{MAKING}/image"],
        *["-format", "UDZO", MADE_IMAGE],
    ],
]
MOVES = [
    ["mv", MADE_ARCHIVE, ARCHIVE],
    ["mv", MADE_IMAGE, IMAGE],
    ["mv", f"{MAKING}/Kestrune-0.1.0.dSYM.zip", SYMBOLS],
    ["rm", "-rf", MAKING],
]


def notarized(submitted, stapled, *kind):
    submit = ["xcrun", "notarytool", "submit", submitted, "--keychain-profile", "kestrune", "--wait"]
    return [
        [*submit, "--output-format", "json"],
        ["xcrun", "stapler", "staple", stapled],
        ["xcrun", "stapler", "validate", stapled],
        ["spctl", "--assess", *kind, "--verbose=4", stapled],
    ]


def generate_appcast(tools):
    return [
        *[f"{tools}/generate_appcast", "--download-url-prefix", DOWNLOAD_URL, "--embed-release-notes"],
        *["--maximum-versions", "0", "-o", MADE_FEED, f"{MAKING}/updates"],
    ]


class DryRunTest(ReleaseToolTest):
    def dry_run(self, *arguments):
        result = self.release("--dry-run", *arguments)
        self.assertEqual((result.returncode, result.stderr, self.calls()), (0, "", []))
        return result.stdout

    def steps(self, *arguments):
        """The commands of the release itself; those that tools/app runs are indented below it."""
        lines = [line for line in self.dry_run(*arguments).splitlines() if not line.startswith(" ")]
        return self.commands("\n".join(lines))


class DryRun(DryRunTest):
    def test_shows_every_command_in_order_with_a_certificate(self):
        tools, new = "build/sparkle/2.10.0/bin", f"{self.appcast}.new"
        given = ["--identity", REAL_IDENTITY, "--feed-url", FEED_URL, "--public-key", PUBLIC_KEY]
        self.assertEqual(
            self.steps(*SIGNED, *self.updates),
            [
                *CHECKOUT,
                ["security", "find-identity", "-v", "-p", "codesigning"],
                SETUP,
                [*APP, *given],
                *BEGINNING,
                [f"{tools}/generate_keys", "-p"],
                [*ZIP, NOTARIZATION],
                *notarized(NOTARIZATION, BUNDLE, "--type", "execute"),
                [*ZIP, MADE_ARCHIVE],
                *FILLED_IMAGE,
                ["codesign", "--sign", REAL_IDENTITY, "--timestamp", MADE_IMAGE],
                ["codesign", "--verify", "--strict", "--verbose=2", MADE_IMAGE],
                *notarized(
                    MADE_IMAGE, MADE_IMAGE, "--type", "open", "--context", "context:primary-signature"
                ),
                ["cp", "docs/releases/0.1.0.md", f"{MAKING}/updates/Kestrune-0.1.0.md"],
                generate_appcast(tools),
                ["cp", MADE_FEED, new],
                *MOVES,
                ["mv", new, str(self.appcast)],
            ],
        )

    def test_shows_no_notarization_of_an_ad_hoc_signature(self):
        self.assertEqual(
            self.steps(*AD_HOC, "--sparkle", "none"),
            [
                *CHECKOUT,
                SETUP,
                [*APP, "--identity", "-", "--sparkle", "none"],
                *BEGINNING,
                [*ZIP, MADE_ARCHIVE],
                *FILLED_IMAGE,
                *MOVES,
            ],
        )

    def test_gives_generate_appcast_the_feed_that_is_there_and_the_notes_that_are_named(self):
        self.write({self.appcast: "<rss><channel/></rss>", self.root / "new.html": "<p>New</p>"})
        steps = self.steps(*AD_HOC, *self.updates, *self.given_sparkle(), "--notes", self.root / "new.html")
        place = steps.index(generate_appcast(self.sparkle_tools))
        notes = ["cp", str(self.root / "new.html"), f"{MAKING}/updates/Kestrune-0.1.0.html"]
        self.assertEqual(steps[place - 2 : place], [notes, ["cp", str(self.appcast), MADE_FEED]])

    def test_shows_what_the_build_runs_below_it(self):
        given = ["--identity", REAL_IDENTITY, *UPDATES[:4]]
        expected = self.call("tools/app", "--system", "Darwin", "--dry-run", *given).stdout.splitlines()
        lines = self.dry_run(*SIGNED, *self.updates).splitlines()
        self.assertEqual([line[4:] for line in lines if line.startswith("    ")], expected)
        place = lines.index(f"    {expected[0]}")
        self.assertEqual(lines[place - 1], shlex.join([*APP, *given]))

    def test_shows_the_build_of_make_app(self):
        self.use_mac()
        made = self.call("make", "-n", "app").stdout.replace("\\\n", "").splitlines()
        lines = [shlex.split(line) for line in made]
        self.assertEqual([lines[0], lines[1][:3]], [SETUP, APP])

    def test_says_what_is_done_to_the_symbols_and_the_feed(self):
        work = [line for line in self.dry_run(*SIGNED, *self.updates).splitlines() if line.startswith("# ")]
        self.assertEqual(
            work[-2:],
            [
                "# pack Kestrune-0.1.0.dSYM.zip of what make app left beside the application",
                f"# find 0.1.0, build 1, at {DOWNLOAD_URL}Kestrune-0.1.0.zip in {MADE_FEED}, signed and with "
                "its notes, and every item that was there",
            ],
        )

    def test_writes_nothing(self):
        before = sorted(self.root.rglob("*"))
        self.dry_run(*SIGNED, *self.updates)
        self.assertEqual(sorted(self.root.rglob("*")), before)

    def test_works_without_a_checkout_or_a_mac(self):
        self.assertFalse((self.checkout / ".git").exists())
        self.assertIn("notarytool", self.dry_run(*SIGNED, *self.updates))


class MadeRelease(DryRunTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def test_runs_what_the_dry_run_shows(self):
        self.pin_archive()
        self.commit("v0.1.0")
        shown = self.logged(self.commands(self.dry_run(*SIGNED, *self.updates)))
        self.assert_made(*SIGNED, *self.updates)
        self.assertEqual(self.calls(), shown)
        self.assertEqual(len(shown), 32)

    def test_leaves_archive_image_symbols_and_feed_and_nothing_else(self):
        self.commit("v0.1.0")
        self.assert_made(*SIGNED, *self.updates, *self.given_sparkle())
        names = ["Kestrune-0.1.0.dSYM.zip", "Kestrune-0.1.0.dmg", "Kestrune-0.1.0.zip", "appcast.xml"]
        self.assertEqual(self.made(), names)
        image = (self.checkout / IMAGE).read_text(encoding="utf-8")
        self.assertEqual(image, "image of Applications Kestrune.app\n")
        with zipfile.ZipFile(self.checkout / SYMBOLS) as symbols:
            self.assertEqual(symbols.read("Kestrune.app.dSYM/Contents/lines"), b"lines\n")

    def test_enters_the_signed_archive_into_the_feed(self):
        self.commit("v0.1.0")
        self.assert_made(*SIGNED, *self.updates, *self.given_sparkle())
        (item,) = ElementTree.parse(self.appcast).getroot().findall("channel/item")
        enclosure = item.find("enclosure")
        namespace = "{http://www.andymatuschak.org/xml-namespaces/sparkle}"
        self.assertEqual(int(enclosure.get("length")), (self.checkout / ARCHIVE).stat().st_size)
        self.assertEqual(enclosure.get("url"), f"{DOWNLOAD_URL}Kestrune-0.1.0.zip")
        self.assertEqual(item.findtext(f"{namespace}version"), "1")
        self.assertEqual(item.findtext("description"), self.notes.read_text(encoding="utf-8"))

    def test_enters_the_next_one_into_the_same_feed(self):
        self.commit("v0.1.0")
        self.assert_made(*SIGNED, *self.updates, *self.given_sparkle())
        self.change_information(CFBundleVersion="2", CFBundleShortVersionString="0.2.0")
        self.write({self.notes.with_name("0.2.0.md"): "- The second\n"})
        self.commit("v0.2.0")
        self.assert_made(*SIGNED, *self.updates, *self.given_sparkle())
        items = ElementTree.parse(self.appcast).getroot().findall("channel/item")
        self.assertEqual([item.findtext("title") for item in items], ["0.1.0", "0.2.0"])

    def test_says_what_to_upload_and_that_nothing_was(self):
        self.commit("other", "v0.1.0")
        output = self.assert_made(*AD_HOC, *self.updates, *self.given_sparkle())
        archive, image, symbols = (os.path.basename(path) for path in (ARCHIVE, IMAGE, SYMBOLS))
        self.assertEqual(
            output.splitlines()[-4:],
            [
                f"{ARCHIVE}, {image} and {symbols} are ready. Nothing has been published.",
                f"{image} is for people. Keep {symbols}: it reads their crash reports.",
                f"First upload {archive} to {DOWNLOAD_URL},",
                f"then {self.appcast} to {FEED_URL}.",
            ],
        )

    def test_does_not_take_its_parameters_from_the_environment(self):
        self.commit("v0.1.0")
        self.assert_made(*AD_HOC, "--sparkle", "none", FEED_URL="https://example.org/other", IDENTITY="Other")
        self.assertNotIn(b"SUFeedURL", (self.checkout / BUNDLE / "Contents/Info.plist").read_bytes())
        self.assertFalse([call for call in self.calls() if "Other" in call])


class Parameters(ReleaseToolTest):
    def assert_refused(self, arguments, *parts):
        with self.subTest(arguments=arguments):
            self.assert_fails(self.release("--dry-run", *arguments), "tools/release: ", *parts)

    def test_that_are_missing_are_all_named_in_one_line(self):
        everything = "--identity, --keychain-profile, --feed-url, --public-key, --download-url, --appcast;"
        self.assert_refused([], f"missing {everything}")
        self.assert_refused(["--sparkle", "none"], "missing --identity, --keychain-profile;")
        self.assert_refused([*AD_HOC, *UPDATES], "missing --appcast;")
        self.assert_refused([*SIGNED, *self.updates, "--sparkle", self.framework], "missing --sparkle-tools;")
        self.assert_refused([*SIGNED, *self.updates, "--public-key", ""], "missing --public-key;")

    def test_that_do_not_go_together_are_named(self):
        notarized_ad_hoc = [*AD_HOC, *self.updates, "--keychain-profile", "a"]
        self.assert_refused(notarized_ad_hoc, "leave out --keychain-profile")
        named = "leave out --feed-url, --public-key, --download-url, --appcast, --notes"
        self.assert_refused([*SIGNED, *self.updates, "--sparkle", "none", "--notes", "a.md"], named)

    def test_that_are_wrong_are_named(self):
        for flag, value in (
            ("--feed-url", "https://"),
            ("--download-url", "http://example.org/"),
            ("--public-key", "AAAA"),
            ("--sparkle", "Sparkle.zip"),
            ("--keychain-profile", "$A"),
        ):
            arguments = [*SIGNED, *self.updates, "--sparkle-tools", "a", flag, value]
            self.assert_refused(arguments, flag, value)
        self.assert_refused(["--identity"], "--identity: expected one argument")
        self.assert_refused(["--feed", FEED_URL], "--feed")

    def test_of_a_feed_that_is_none_are_refused(self):
        self.appcast.write_text("<html>", encoding="utf-8")
        self.assert_refused([*SIGNED, *self.updates], f"{self.appcast} is no appcast")

    def test_of_notes_that_nobody_could_read_are_refused(self):
        arguments = [*SIGNED, *self.updates]
        for notes, reason in (
            ("notes.rtf", "ends in none of .html, .md, .txt"),
            ("empty.md", "has no release notes"),
        ):
            self.write({self.root / notes: "\n"})
            self.assert_refused([*arguments, "--notes", self.root / notes], notes, reason)
        self.notes.unlink()
        reason = "docs/releases/0.1.0.md with the release notes cannot be read: "
        self.assert_refused(arguments, reason, "write it, or name another with --notes")

    def test_of_what_is_not_there_are_refused_before_the_build(self):
        self.use_mac()
        (self.sparkle_tools / "generate_appcast").unlink()
        result = self.release(*SIGNED, *self.updates, *self.given_sparkle())
        self.assert_fails(result, "--sparkle-tools", str(self.sparkle_tools), "has no generate_appcast")
        shutil.rmtree(self.appcast.parent)
        result = self.release(*SIGNED, *self.updates)
        self.assert_fails(result, f"--appcast '{self.appcast}' is in no folder that is there")
        self.assertEqual(self.calls(), [])


if __name__ == "__main__":
    unittest.main()
