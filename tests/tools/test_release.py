"""tools/release does every step of a release in order and publishes nothing, seen with stand-ins."""

import unittest
import xml.etree.ElementTree as ElementTree

from releases import DOWNLOAD_URL, FEED_URL, PUBLIC_KEY, REAL_IDENTITY, UPDATES, ReleaseTest

BUNDLE = "build/mac/Kestrune.app"
ARCHIVE = "out/release/Kestrune-0.1.0.zip"
NOTARIZATION = "out/release/notarization.zip"
SIGNED = ["--identity", REAL_IDENTITY, "--keychain-profile", "kestrune"]
AD_HOC = ["--identity", "-"]
ZIP = ["ditto", "-c", "-k", "--sequesterRsrc", "--keepParent", BUNDLE]


class ReleaseToolTest(ReleaseTest):
    def setUp(self):
        super().setUp()
        self.appcast = self.root / "appcast.xml"
        self.updates = [*UPDATES, "--appcast", self.appcast]

    def release(self, *arguments, **environment):
        return self.call("tools/release", *arguments, **environment)

    def dry_run(self, *arguments):
        result = self.release("--dry-run", *arguments)
        self.assertEqual((result.returncode, result.stderr, self.calls()), (0, "", []))
        return result.stdout

    def steps(self, *arguments):
        """The commands of the release itself; those that `make app` runs are indented below it."""
        lines = [line for line in self.dry_run(*arguments).splitlines() if not line.startswith(" ")]
        return self.commands("\n".join(lines))

    def given_sparkle(self):
        return ["--sparkle", self.framework, "--sign-update", self.sign_update]


class DryRun(ReleaseToolTest):
    def test_shows_every_command_in_order_with_a_certificate(self):
        self.assertEqual(
            self.steps(*SIGNED, *self.updates),
            [
                ["git", "status", "--porcelain"],
                ["git", "tag", "--points-at", "HEAD"],
                [
                    "make",
                    "app",
                    f"IDENTITY={REAL_IDENTITY}",
                    "SPARKLE=",
                    f"FEED_URL={FEED_URL}",
                    f"PUBLIC_KEY={PUBLIC_KEY}",
                ],
                ["mkdir", "-p", "out/release"],
                ["rm", "-f", NOTARIZATION, ARCHIVE],
                [*ZIP, NOTARIZATION],
                ["xcrun", "notarytool", "submit", NOTARIZATION, "--keychain-profile", "kestrune", "--wait"],
                ["xcrun", "stapler", "staple", BUNDLE],
                ["xcrun", "stapler", "validate", BUNDLE],
                [*ZIP, ARCHIVE],
                ["build/sparkle/2.10.0/bin/sign_update", ARCHIVE],
            ],
        )

    def test_shows_no_notarization_of_an_ad_hoc_signature(self):
        self.assertEqual(
            self.steps(*AD_HOC, *self.updates, *self.given_sparkle()),
            [
                ["git", "status", "--porcelain"],
                ["git", "tag", "--points-at", "HEAD"],
                [
                    "make",
                    "app",
                    "IDENTITY=-",
                    f"SPARKLE={self.framework}",
                    f"FEED_URL={FEED_URL}",
                    f"PUBLIC_KEY={PUBLIC_KEY}",
                ],
                ["mkdir", "-p", "out/release"],
                ["rm", "-f", NOTARIZATION, ARCHIVE],
                [*ZIP, ARCHIVE],
                [str(self.sign_update), ARCHIVE],
            ],
        )

    def test_ends_with_the_archive_without_sparkle(self):
        steps = self.steps(*SIGNED, "--sparkle", "none")
        make = ["make", "app", f"IDENTITY={REAL_IDENTITY}", "SPARKLE=none", "FEED_URL=", "PUBLIC_KEY="]
        self.assertEqual(steps[2], make)
        self.assertEqual(steps[-1], [*ZIP, ARCHIVE])

    def test_shows_what_make_app_runs_below_it(self):
        given = ["--identity", REAL_IDENTITY, *UPDATES[:4]]
        expected = self.call("tools/app", "--system", "Darwin", "--dry-run", *given).stdout.splitlines()
        lines = self.dry_run(*SIGNED, *self.updates).splitlines()
        self.assertEqual([line[4:] for line in lines if line.startswith("    ")], expected)
        self.assertTrue(lines[2].startswith("make app ") and lines[3].startswith("    mkdir "))

    def test_shows_the_item_for_the_appcast_last(self):
        last = self.dry_run(*SIGNED, *self.updates).splitlines()[-1]
        address = f"{DOWNLOAD_URL}Kestrune-0.1.0.zip"
        self.assertEqual(last, f"# add an item for 0.1.0, build 1, at {address} to {self.appcast}")

    def test_writes_nothing(self):
        before = sorted(self.root.rglob("*"))
        self.dry_run(*SIGNED, *self.updates)
        self.assertEqual(sorted(self.root.rglob("*")), before)

    def test_works_without_a_checkout_or_a_mac(self):
        self.assertFalse((self.checkout / ".git").exists())
        self.assertIn("notarytool", self.dry_run(*SIGNED, *self.updates))


class MadeRelease(ReleaseToolTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def assert_made(self, *arguments, **environment):
        result = self.release(*arguments, **environment)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout

    def test_runs_what_the_dry_run_shows(self):
        self.pin_archive()
        self.commit("v0.1.0")
        shown = self.logged(self.commands(self.dry_run(*SIGNED, *self.updates)))
        self.assert_made(*SIGNED, *self.updates)
        self.assertEqual(self.calls(), shown)
        self.assertEqual(len(shown), 20)

    def test_enters_the_signed_archive_into_the_appcast(self):
        self.commit("v0.1.0")
        self.assert_made(*SIGNED, *self.updates, *self.given_sparkle())
        item = ElementTree.parse(self.appcast).getroot().find("channel/item")
        enclosure = item.find("enclosure")
        namespace = "{http://www.andymatuschak.org/xml-namespaces/sparkle}"
        self.assertEqual(enclosure.get(f"{namespace}edSignature"), "c2lnbmVk")
        self.assertEqual(int(enclosure.get("length")), (self.checkout / ARCHIVE).stat().st_size)
        self.assertEqual(enclosure.get("url"), f"{DOWNLOAD_URL}Kestrune-0.1.0.zip")
        self.assertEqual(item.findtext(f"{namespace}version"), "1")
        self.assertEqual(item.findtext(f"{namespace}minimumSystemVersion"), "13.0")

    def test_says_what_to_upload_and_that_nothing_was(self):
        self.commit("other", "v0.1.0")
        output = self.assert_made(*AD_HOC, *self.updates, *self.given_sparkle())
        self.assertEqual(
            output.splitlines()[-3:],
            [
                f"{ARCHIVE} is ready. Nothing has been published.",
                f"First upload it to {DOWNLOAD_URL}Kestrune-0.1.0.zip,",
                f"then {self.appcast} to {FEED_URL}.",
            ],
        )

    def test_does_not_take_its_parameters_from_the_environment(self):
        self.commit("v0.1.0")
        self.assert_made(*AD_HOC, "--sparkle", "none", FEED_URL="https://example.org/other", IDENTITY="Other")
        self.assertNotIn(b"SUFeedURL", (self.checkout / BUNDLE / "Contents/Info.plist").read_bytes())
        self.assertFalse([call for call in self.calls() if "Other" in call])


class RefusedRelease(ReleaseToolTest):
    def setUp(self):
        super().setUp()
        self.use_mac()
        self.arguments = [*SIGNED, *self.updates, *self.given_sparkle()]

    def assert_nothing_made(self, result, *parts):
        self.assert_fails(result, "tools/release: ", *parts)
        self.assertEqual(self.calls(), [])
        self.assertFalse(self.appcast.exists())

    def test_is_of_a_checkout_with_changes(self):
        self.commit("v0.1.0")
        self.write({"checkout/new.txt": ""})
        self.assert_nothing_made(self.release(*self.arguments), "the checkout has changes: ?? new.txt")

    def test_is_of_a_commit_without_the_tag_of_its_version(self):
        self.commit("v0.2.0")
        self.assert_nothing_made(self.release(*self.arguments), "does not have the tag v0.1.0")

    def test_has_a_build_that_was_released(self):
        self.commit("v0.1.0")
        made = self.release(*AD_HOC, *self.updates, *self.given_sparkle())
        self.assertEqual(made.returncode, 0, made.stderr)
        before, calls = self.appcast.read_bytes(), self.calls()
        result = self.release(*self.arguments)
        self.assert_fails(result, "tools/release: ", "has build 1 already", "raise CFBundleVersion")
        self.assertEqual((self.appcast.read_bytes(), self.calls()), (before, calls))

    def test_ends_where_the_notarization_fails(self):
        self.use_mac(xcrun="[[ $1 != notarytool ]]")
        self.commit("v0.1.0")
        result = self.release(*self.arguments)
        self.assert_fails(result, "failed with exit status 1: xcrun notarytool submit")
        self.assertFalse((self.checkout / ARCHIVE).exists() or self.appcast.exists())

    def test_has_no_signature_for_its_archive(self):
        self.sign_update.write_text("#!/bin/sh\necho no key\n", encoding="utf-8")
        self.commit("v0.1.0")
        self.assert_fails(self.release(*self.arguments), "sign_update printed no edSignature: 'no key'")
        self.assertFalse(self.appcast.exists())

    def test_is_wanted_where_there_is_no_mac(self):
        self.use_programs({})
        self.assert_nothing_made(self.release(*self.arguments), "needs a Mac: codesign and ditto", "xcrun")


class Parameters(ReleaseToolTest):
    def assert_refused(self, arguments, *parts):
        with self.subTest(arguments=arguments):
            self.assert_fails(self.release("--dry-run", *arguments), "tools/release: ", *parts)

    def test_that_are_missing_are_all_named_in_one_line(self):
        everything = "--identity, --keychain-profile, --feed-url, --public-key, --download-url, --appcast;"
        self.assert_refused([], f"missing {everything}")
        self.assert_refused(["--sparkle", "none"], "missing --identity, --keychain-profile;")
        self.assert_refused([*AD_HOC, *UPDATES], "missing --appcast;")
        self.assert_refused([*SIGNED, *self.updates, "--sparkle", self.framework], "missing --sign-update;")
        self.assert_refused([*SIGNED, *self.updates, "--public-key", ""], "missing --public-key;")

    def test_that_do_not_go_together_are_named(self):
        notarized = [*AD_HOC, *self.updates, "--keychain-profile", "a"]
        self.assert_refused(notarized, "leave out --keychain-profile")
        named = "leave out --feed-url, --public-key, --download-url, --appcast"
        self.assert_refused([*SIGNED, *self.updates, "--sparkle", "none"], named)

    def test_that_are_wrong_are_named(self):
        for flag, value in (
            ("--feed-url", "https://"),
            ("--download-url", "http://example.org/"),
            ("--public-key", "AAAA"),
            ("--sparkle", "Sparkle.zip"),
            ("--keychain-profile", "$A"),
        ):
            arguments = [*SIGNED, *self.updates, "--sign-update", "a", flag, value]
            self.assert_refused(arguments, flag, value)
        self.assert_refused(["--identity"], "--identity: expected one argument")
        self.assert_refused(["--feed", FEED_URL], "--feed")

    def test_of_an_appcast_that_is_none_are_refused(self):
        self.appcast.write_text("<html>", encoding="utf-8")
        self.assert_refused([*SIGNED, *self.updates], f"{self.appcast} is no appcast")


if __name__ == "__main__":
    unittest.main()
