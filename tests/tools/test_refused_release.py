"""Whatever stops a release, it says so in one line, leaves nothing half-made and the feed as it was."""

import shutil
import unittest

from releases import (
    AD_HOC,
    LOG,
    REAL_IDENTITY,
    SIGNED,
    SIGNED_PROGRAM,
    STAND_INS,
    ReleaseToolTest,
)

APPLICATION, IMAGE = "out/release/making/notarization.zip", "out/release/making/Kestrune-0.1.0.dmg"
REFUSAL = '{"id": "6bd8", "message": "Processing complete", "status": "Invalid"}'
NOTARY_LOG = '{"issues": [{"path": "Kestrune.app/Contents/MacOS/Kestrune"}]}'


FEED = """<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
    <channel>
        <item><title>0.0.9</title><sparkle:version>0.9</sparkle:version></item>
    </channel>
</rss>
"""


def refusing(submitted, status=0, answer=REFUSAL):
    """The notary, who does not accept this one."""
    return f"""{LOG}if [[ $1 == notarytool && $2 == log ]]; then echo '{NOTARY_LOG}'
elif [[ $1 == notarytool && $3 == {submitted} ]]; then echo '{answer}'; exit {status}
elif [[ $1 == notarytool ]]; then echo '{{"id": "1", "status": "Accepted"}}'; fi"""


class RefusedRelease(ReleaseToolTest):
    def setUp(self):
        super().setUp()
        self.use_mac()
        self.arguments = [*SIGNED, *self.updates, *self.given_sparkle()]
        self.commit("v0.1.0")
        self.appcast.write_text(FEED, encoding="utf-8")

    def assert_refused(self, *parts, arguments=None, left=(), program="tools/release", **environment):
        """In one line, with the feed as it was and nothing else but what is left on purpose."""
        result = self.release(*(arguments or self.arguments), **environment)
        self.assert_fails(result, f"{program}: ", *parts)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(self.made(), sorted(["appcast.xml", *left]))
        self.assertEqual(self.appcast.read_text(encoding="utf-8"), FEED)
        return result

    def assert_refused_at_once(self, *parts, **named):
        """Before anything is built."""
        self.assert_refused(*parts, **named)
        self.assertNotIn("cmake", [call[0] for call in self.calls()])
        self.assertFalse((self.checkout / "build").exists())

    def called(self):
        return [call[0] for call in self.calls()]


class BeforeTheBuild(RefusedRelease):
    def test_is_of_a_checkout_with_changes(self):
        self.write({"checkout/new.txt": ""})
        self.assert_refused_at_once("the checkout has changes: ?? new.txt")

    def test_is_of_a_commit_without_the_tag_of_its_version(self):
        self.call("git", "tag", "--delete", "v0.1.0")
        self.call("git", "tag", "v0.2.0")
        self.assert_refused_at_once("does not have the tag v0.1.0")

    def test_is_not_greater_than_the_last(self):
        self.assert_made(*self.arguments)
        made, calls = self.made(), self.calls()
        result = self.release(*self.arguments)
        self.assert_fails(result, "tools/release: ", "has build 1 already", "raise CFBundleVersion")
        self.assertEqual((result.returncode, self.made(), self.calls()), (1, made, calls))

    def test_has_no_certificate(self):
        self.use_mac(security=LOG + "echo '     0 valid identities found'")
        lists = "security find-identity -v -p codesigning lists those it has"
        self.assert_refused_at_once(
            f"the keychain has no certificate '{REAL_IDENTITY}' to sign with; {lists}"
        )

    def test_has_no_notes(self):
        self.notes.unlink()
        self.assert_refused_at_once("docs/releases/0.1.0.md with the release notes cannot be read")

    def test_is_wanted_where_there_is_no_mac(self):
        self.use_programs({})
        self.assert_refused_at_once(
            "needs a Mac: codesign and ditto", "hdiutil", "security", "spctl", "xcrun"
        )


class InTheBuild(RefusedRelease):
    """Which tools/app reports, in the one line that there is."""

    def test_has_no_network(self):
        self.use_mac(curl="exit 6")
        self.assert_refused(
            "failed with exit status 6: curl",
            "without a network give SPARKLE=",
            arguments=[*SIGNED, *self.updates],
            program="tools/app",
        )

    def test_has_another_checksum(self):
        self.pin_archive(sha256="0" * 64)
        self.call("git", "-c", "user.name=A", "-c", "user.email=a@b", "commit", "-qam", "Pin")
        self.call("git", "tag", "--force", "v0.1.0")
        self.assert_refused(
            "not the one in tools/sparkle.ini; it is deleted",
            arguments=[*SIGNED, *self.updates],
            program="tools/app",
        )
        self.assertEqual([path.name for path in (self.checkout / "build/sparkle").iterdir()], ["2.10.0"])

    def test_has_a_framework_without_a_processor(self):
        shutil.copy(SIGNED_PROGRAM.with_name("arm64.macho"), self.framework / "Versions/B/Sparkle")
        self.assert_refused("Versions/B/Sparkle is not for x86_64", program="tools/app")
        self.assertEqual(list((self.checkout / "build").glob("*/Kestrune*")), [])


class Notarization(RefusedRelease):
    def assert_not_accepted(self, submitted, status=0):
        self.use_mac(xcrun=refusing(submitted, status))
        path = "out/release/notarization-log.json"
        message = f"the notary did not accept {submitted}: Invalid, submission 6bd8; why is in {path}"
        result = self.assert_refused(message, left=["notarization-log.json"])
        self.assertEqual((self.checkout / path).read_text(encoding="utf-8"), f"{NOTARY_LOG}\n")
        self.assertIn(NOTARY_LOG, result.stdout)
        asked = ["xcrun", "notarytool", "log", "6bd8", "--keychain-profile", "kestrune"]
        self.assertEqual(self.calls()[-1], asked)

    def test_of_the_application_is_refused(self):
        self.assert_not_accepted(APPLICATION)
        self.assertFalse({"hdiutil", "spctl", "generate_appcast"} & set(self.called()))

    def test_of_the_disk_image_is_refused(self):
        self.assert_not_accepted(IMAGE)
        self.assertNotIn("generate_appcast", self.called())

    def test_is_refused_whatever_the_exit_status(self):
        self.assert_not_accepted(APPLICATION, status=2)

    def test_keeps_no_log_of_an_earlier_refusal(self):
        self.assert_not_accepted(APPLICATION)
        self.use_mac()
        self.assert_made(*self.arguments)
        self.assertNotIn("notarization-log.json", self.made())

    def test_is_refused_and_nobody_can_say_why(self):
        script = refusing(APPLICATION).replace(f"echo '{NOTARY_LOG}'", "exit 4")
        self.use_mac(xcrun=script)
        refusal = f"the notary did not accept {APPLICATION}: Invalid, submission 6bd8; its log: "
        self.assert_refused(f"{refusal}failed with exit status 4: xcrun notarytool log 6bd8")

    def test_is_cut_off_or_has_the_wrong_profile(self):
        for answer in ("", "Error: no credentials", "[1]", '{"message": "Internet is offline"}', '{"id": 1'):
            with self.subTest(answer):
                self.use_mac(xcrun=refusing(APPLICATION, status=69, answer=answer))
                self.assert_refused(
                    f"notarytool gave no id and status, but {answer!r}; is there a network, ",
                    "does the keychain have the profile 'kestrune'?",
                )

    def test_is_accepted_after_other_words(self):
        self.use_mac(
            xcrun=f"""[[ $2 != submit ]] || echo 'Waiting...
{{"id": "1", "status": "Accepted"}}'"""
        )
        self.assert_made(*self.arguments)


class AfterTheBuild(RefusedRelease):
    def test_would_be_signed_with_another_key_than_installed_copies_have(self):
        (self.sparkle_tools / "generate_keys").write_text("#!/bin/sh\necho AAAA\n", encoding="utf-8")
        self.assert_refused("the keychain would sign updates for 'AAAA', and --public-key is ")
        self.assertNotIn("xcrun", self.called())

    def test_ends_with_any_program_that_fails(self):
        for name, expression in (
            ("ditto", "[[ $1 != -c ]]"),
            ("xcrun", "[[ $2 != staple ]]"),
            ("xcrun", "[[ $2 != validate ]]"),
            ("spctl", "[[ $3 != execute ]]"),
            ("spctl", "[[ $3 != open ]]"),
            ("hdiutil", "false"),
            ("codesign", f"[[ ${{@: -1}} != {IMAGE} ]]"),
            ("codesign", f"[[ $1 != --verify || ${{@: -1}} != {IMAGE} ]]"),
        ):
            with self.subTest(name=name, expression=expression):
                self.use_mac(**{name: f"{STAND_INS[name]}\n{expression}"})
                self.assert_refused("failed with exit status 1: ", name)

    def test_ends_when_the_feed_is_not_written(self):
        (self.sparkle_tools / "generate_appcast").write_text("#!/bin/sh\nexit 1\n", encoding="utf-8")
        self.assert_refused("failed with exit status 1: ", "generate_appcast --download-url-prefix")

    def test_ends_when_the_feed_is_written_wrongly(self):
        for change, message in (
            (
                'sparkle:edSignature="[^"]*" -> ',
                "left build 1 without a signature that could be checked ('')",
            ),
            ("<item>.*?</item> -> ", "was to add build 1 to ['0.9'] and left ['1']"),
            ('length="\\d+" -> length="3"', "wrote the length '3' instead of "),
            ("downloads/ -> ", "wrote the address 'https://example.org/Kestrune-0.1.0.zip' instead of "),
            ("<description>.*</description> -> ", "left build 1 without its release notes"),
        ):
            with self.subTest(change):
                self.assert_refused(f"generate_appcast {message}", FEED_CHANGE=change)

    def test_ends_when_the_files_cannot_be_put_in_place(self):
        real = shutil.which("mv")
        for name in ("Kestrune-0.1.0.dmg", "appcast.xml"):
            with self.subTest(name):
                self.use_mac()
                (self.root / "bin/mv").unlink()
                self.write(
                    {self.root / "bin/mv": f'#!/bin/sh\n[ "${{2##*/}}" != {name} ] && exec {real} "$@"\n'}
                )
                (self.root / "bin/mv").chmod(0o755)
                self.assert_refused("failed with exit status 1: mv", name)

    def test_ends_when_the_symbols_cannot_be_packed(self):
        script = STAND_INS["ditto"] + "\nif [[ $1 == -c ]]; then rm -rf build/*/Kestrune.app.dSYM; fi"
        self.use_mac(ditto=script)
        self.assert_refused("failed to pack Kestrune-0.1.0.dSYM.zip", "No such file or directory")

    def test_of_a_rehearsal_leaves_as_little(self):
        self.use_mac(hdiutil="exit 1")
        self.assert_refused("hdiutil create", arguments=[*AD_HOC, "--sparkle", "none"])


if __name__ == "__main__":
    unittest.main()
