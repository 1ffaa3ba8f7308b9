"""tools/app puts Kestrune.app together and signs it on a Mac, seen with stand-ins for a Mac's programs."""

import os
import plistlib
import re
import subprocess
import unittest
import zipfile

from releases import FEED_URL, LOG, PUBLIC_KEY, REAL_IDENTITY, SIGNED_PROGRAM, ReleaseTest
from trees import REPOSITORY

BUILD = "build/mac-universal"
BUNDLE = "build/mac/Kestrune.app"
ARCHIVE = "build/mac/Kestrune.zip"
SYMBOLS = f"{BUNDLE}.dSYM"
PROGRAM = "Contents/MacOS/Kestrune"
FRAMEWORK = f"{BUNDLE}/Contents/Frameworks/Sparkle.framework"
TINY_PROGRAM = REPOSITORY / "tests/fuzz/corpus/mach-file/universal.macho"
VERIFICATION = ["codesign", "--verify", "--strict", "--deep", "--verbose=2", BUNDLE]


class AppTest(ReleaseTest):
    def app(self, *arguments):
        return self.call("tools/app", "--system", "Darwin", *arguments)

    def dry_run(self, *arguments):
        result = self.app("--dry-run", *arguments)
        self.assertEqual((result.returncode, result.stderr, self.calls()), (0, "", []))
        return self.commands(result.stdout)

    def build(self, *arguments):
        result = self.app(*arguments)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return plistlib.loads((self.checkout / BUNDLE / "Contents/Info.plist").read_bytes())

    def path(self, name):
        return self.checkout / name

    def assert_nothing_left(self):
        self.assertEqual([name for name in (BUNDLE, ARCHIVE, SYMBOLS) if self.path(name).exists()], [])


class DryRun(AppTest):
    def test_shows_every_command_in_order(self):
        archive, fetched = "build/sparkle/Sparkle-2.10.0.tar.xz", "build/sparkle/Sparkle-2.10.0.tar.part"
        address = "https://github.com/sparkle-project/Sparkle/releases/download/2.10.0/Sparkle-2.10.0.tar.xz"
        self.assertEqual(
            [command for command in self.dry_run() if command[0] != "codesign"],
            [
                ["mkdir", "-p", "build/sparkle/2.10.0"],
                [
                    *["curl", "--fail", "--location", "--proto", "=https", "--remove-on-error"],
                    *["--output", fetched, address],
                ],
                ["tar", "-xf", archive, "-C", "build/sparkle/2.10.0"],
                ["cmake", "--preset", "mac-universal"],
                ["cmake", "--build", "--preset", "mac-universal", "--parallel", str(os.cpu_count())],
                ["rm", "-rf", ARCHIVE, BUNDLE, SYMBOLS],
                ["mkdir", "-p", "build/mac"],
                ["ditto", "--noextattr", "--noqtn", f"{BUILD}/mac/Kestrune.app", BUNDLE],
                [
                    *["dsymutil", "--oso-prepend-path", BUILD, "-o", SYMBOLS],
                    f"{BUILD}/mac/Kestrune.app/{PROGRAM}",
                ],
                ["strip", f"{BUNDLE}/{PROGRAM}"],
                ["dwarfdump", "--uuid", SYMBOLS],
                ["dwarfdump", "--uuid", f"{BUNDLE}/{PROGRAM}"],
                ["mkdir", "-p", f"{BUNDLE}/Contents/Frameworks"],
                ["ditto", "--noextattr", "--noqtn", "build/sparkle/2.10.0/Sparkle.framework", FRAMEWORK],
                ["rm", "-rf", f"{FRAMEWORK}/XPCServices", f"{FRAMEWORK}/Versions/B/XPCServices"],
            ],
        )

    def test_fetches_nothing_that_is_there(self):
        self.write({"checkout/build/sparkle/Sparkle-2.10.0.tar.xz": ""})
        self.assertNotIn("curl", [command[0] for command in self.dry_run()])

    def test_fetches_nothing_when_sparkle_is_given(self):
        commands = self.dry_run("--sparkle", self.framework)
        self.assertFalse({"curl", "tar"} & {command[0] for command in commands})
        self.assertIn(["ditto", "--noextattr", "--noqtn", str(self.framework), FRAMEWORK], commands)

    def test_touches_no_framework_without_sparkle(self):
        for command in self.dry_run("--sparkle", "none"):
            self.assertNotIn("Sparkle", " ".join(command))


class Linux(AppTest):
    def work(self, system, bundle):
        result = self.call("tools/app", "--system", system, "--dry-run", "--sparkle", "none")
        text = result.stdout.replace(bundle, "BUNDLE").replace(bundle.replace(".app", ".zip"), "ZIP")
        return [line for line in text.splitlines() if line.startswith("# ")]

    def test_does_the_same_to_the_bundle_but_for_its_seal(self):
        languages, information, seal, programs, archive = self.work("Linux", "build/cross/Kestrune.app")
        self.assertEqual(seal, "# seal BUNDLE and the code in it")
        reading = "# read the signature of each half of BUNDLE"
        self.assertEqual(self.work("Darwin", BUNDLE), [languages, information, reading, programs, archive])


class Signing(AppTest):
    def signing(self, *arguments):
        return [command for command in self.dry_run(*arguments) if command[0] == "codesign"]

    def test_goes_from_the_inside_out_and_is_verified(self):
        commands = self.signing("--identity", REAL_IDENTITY)
        version = f"{FRAMEWORK}/Versions/B"
        signed = [f"{version}/Autoupdate", f"{version}/Updater.app", version, BUNDLE]
        self.assertEqual([command[-1] for command in commands[:-1]], signed)
        self.assertEqual(commands[-1], VERIFICATION)

    def test_has_a_time_stamp_and_no_entitlements_with_a_certificate(self):
        sign = ["codesign", "--force", "--sign", REAL_IDENTITY, "--options", "runtime", "--timestamp"]
        for command in self.signing("--identity", REAL_IDENTITY)[:-1]:
            self.assertEqual(command[:-1], sign)

    def test_turns_library_validation_off_for_an_ad_hoc_application_only(self):
        sign = ["codesign", "--force", "--sign", "-", "--options", "runtime", "--timestamp=none"]
        *nested, application, _ = self.signing("--identity", "-")
        for command in nested:
            self.assertEqual(command[:-1], sign)
        path = "tools/releasing/ad-hoc.entitlements"
        self.assertEqual(application, [*sign, "--entitlements", path, BUNDLE])
        entitlements = plistlib.loads(self.path(path).read_bytes())
        self.assertEqual(entitlements, {"com.apple.security.cs.disable-library-validation": True})

    def test_is_ad_hoc_unless_told_otherwise(self):
        self.assertEqual(self.signing(), self.signing("--identity", "-"))
        self.assertEqual(self.signing("--identity", ""), self.signing("--identity", "-"))

    def test_signs_the_application_alone_without_sparkle(self):
        self.assertEqual([command[-1] for command in self.signing("--sparkle", "none")], [BUNDLE, BUNDLE])


class Build(AppTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def test_runs_what_the_dry_run_shows(self):
        self.pin_archive()
        arguments = ["--identity", REAL_IDENTITY, "--feed-url", FEED_URL, "--public-key", PUBLIC_KEY]
        shown = self.logged(self.dry_run(*arguments))
        self.build(*arguments)
        self.assertEqual(self.calls(), shown)
        self.assertEqual(len(shown), 15)

    def test_leaves_the_bundle_with_its_framework(self):
        self.build("--sparkle", self.framework)
        self.assertTrue(self.path(f"{BUNDLE}/{PROGRAM}").is_file())
        self.assertTrue(self.path(f"{FRAMEWORK}/Versions/B/Autoupdate").is_file())
        self.assertTrue(self.path(f"{FRAMEWORK}/Autoupdate").is_symlink())
        with zipfile.ZipFile(self.path("build/mac/Kestrune.zip")) as packed:
            name = "Kestrune.app/Contents/Frameworks/Sparkle.framework/Autoupdate"
            self.assertEqual(packed.read(name), b"Versions/Current/Autoupdate")

    def test_removes_the_services_for_sandboxed_applications(self):
        self.build("--sparkle", self.framework)
        self.assertFalse(self.path(f"{FRAMEWORK}/XPCServices").is_symlink())
        self.assertFalse(self.path(f"{FRAMEWORK}/Versions/B/XPCServices").exists())
        self.assertTrue((self.framework / "XPCServices").exists())

    def test_keeps_nothing_of_the_build_before(self):
        self.build("--sparkle", self.framework)
        self.build("--sparkle", "none")
        self.assertFalse(self.path(f"{BUNDLE}/Contents/Frameworks").exists())

    def test_fetches_once(self):
        self.pin_archive()
        self.build()
        self.build()
        self.assertEqual([call[0] for call in self.calls()].count("curl"), 1)

    def test_strips_the_program_and_keeps_the_symbols(self):
        self.build("--sparkle", "none")
        self.assertEqual(self.path(f"{BUNDLE}/{PROGRAM}").read_bytes(), SIGNED_PROGRAM.read_bytes())
        self.assertIn(b"with symbols", self.path(f"{BUILD}/mac/Kestrune.app/{PROGRAM}").read_bytes())
        self.assertTrue(self.path(SYMBOLS).is_dir())

    def test_ends_with_the_path_and_a_line_for_each_half(self):
        result = self.app("--sparkle", "none")
        path, *halves = result.stdout.splitlines()[-3:]
        self.assertEqual(path, f"{BUNDLE} is built and signed")
        for line, processor in zip(halves, ("x86_64", "arm64")):
            known = r"for macOS 13.0, org.kestrune.Tiny, cdhash [0-9a-f]{40}"
            self.assertRegex(line, rf"^{processor}: \d+ bytes, {known}, \d pages$")

    def test_ends_when_the_symbols_are_of_another_program(self):
        self.use_mac(dwarfdump='echo "UUID: ${#2} (arm64) $2"; echo "UUID: 41 (x86_64) $2"')
        self.assert_fails(self.app("--sparkle", "none"), f"tools/app: {SYMBOLS} has the UUIDs")

    def test_ends_when_lines_of_the_symbols_are_missing(self):
        self.use_mac(dsymutil="echo warning: no main.cpp.o >&2")
        message = "tools/app: the symbols are not whole: warning: no main.cpp.o"
        self.assert_fails(self.app("--sparkle", "none"), message)

    def test_ends_when_the_program_was_not_signed(self):
        self.use_mac(strip=f'cp "{TINY_PROGRAM}" "$1"')
        self.assert_fails(self.app("--sparkle", "none"), f"tools/app: {BUNDLE}/{PROGRAM} has no", "signature")

    def test_ends_when_a_program_fails(self):
        self.use_mac(codesign="exit 3")
        result = self.app("--sparkle", self.framework)
        beginning = "tools/app: failed with exit status 3: codesign --force --sign -"
        self.assert_fails(result, beginning, "Autoupdate")
        self.assert_nothing_left()

    def test_ends_when_a_program_of_the_framework_is_not_for_both_processors(self):
        self.build("--sparkle", self.framework)
        helper = self.framework / "Versions/B/Updater.app/Contents/MacOS/Updater"
        helper.write_bytes((SIGNED_PROGRAM.parent / "arm64.macho").read_bytes())
        copy = f"{FRAMEWORK}/Versions/B/Updater.app/Contents/MacOS/Updater"
        message = f"tools/app: {copy} is not for x86_64; the application is for arm64 and x86_64"
        self.assert_fails(self.app("--sparkle", self.framework), message)
        self.assert_nothing_left()

    def test_that_does_not_compile_leaves_what_was_built_before(self):
        self.build("--sparkle", "none")
        self.use_mac(cmake="exit 1")
        self.assert_fails(self.app("--sparkle", "none"), "failed with exit status 1: cmake --preset mac")
        for name in (BUNDLE, ARCHIVE, SYMBOLS):
            self.assertTrue(self.path(name).exists(), name)


class Certificate(AppTest):
    def assert_missing(self, identity):
        result = self.app("--sparkle", "none", "--identity", identity)
        beginning = (
            f"tools/app: the keychain has no certificate {identity!r} to sign with; security find-identity"
        )
        self.assert_fails(result, beginning)
        self.assertEqual([call[0] for call in self.calls()], ["security"])
        self.assert_nothing_left()

    def test_that_the_keychain_lacks_ends_the_build_before_it_begins(self):
        self.use_mac()
        self.assert_missing("Developer ID Application: Some Other (TEAM654321)")

    def test_of_an_empty_keychain_is_missing(self):
        self.use_mac(security=LOG + "echo '     0 identities found'")
        self.assert_missing("0")

    def test_may_be_named_by_a_part_of_its_name_or_its_whole_hash(self):
        self.use_mac()
        for identity in ("Some One", "0123456789" * 4):
            self.build("--sparkle", "none", "--identity", identity)
        hexadecimal = "ABCDEF0123" * 4
        self.use_mac(security=f"echo '  1) {hexadecimal} \"Own\" (CSSMERR_TP_NOT_TRUSTED)'")
        for identity in ("Own", hexadecimal, hexadecimal.lower()):
            self.build("--sparkle", "none", "--identity", identity)


class Checksum(AppTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def test_of_the_archive_lets_it_be_unpacked_and_kept(self):
        self.pin_archive()
        for _ in range(2):
            self.assertEqual(self.app().returncode, 0)
            self.assertEqual([call[0] for call in self.calls()].count("curl"), 1)

    def test_of_another_archive_ends_the_build_and_deletes_it(self):
        self.pin_archive(sha256="0" * 64)
        self.assert_fails(self.app(), "not the one in tools/sparkle.ini; it is deleted")
        self.assertEqual([call[0] for call in self.calls()], ["curl"])
        self.assertEqual([path.name for path in self.path("build/sparkle").iterdir()], ["2.10.0"])

    def test_has_to_be_written_down(self):
        self.write({"checkout/tools/sparkle.ini": "[sparkle]\nversion = 2\n"})
        self.assert_fails(self.app(), "tools/sparkle.ini does not say version and sha256")
        self.assertEqual(self.calls(), [])


class Information(AppTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def test_has_the_feed_and_the_key_that_are_given(self):
        properties = self.build("--sparkle", "none", "--feed-url", FEED_URL, "--public-key", PUBLIC_KEY)
        self.assertEqual((properties["SUFeedURL"], properties["SUPublicEDKey"]), (FEED_URL, PUBLIC_KEY))

    def test_lacks_them_when_they_are_not_given(self):
        properties = self.build("--sparkle", "none", "--feed-url", "", "--public-key", "")
        self.assertFalse({"SUFeedURL", "SUPublicEDKey"} & properties.keys())
        self.assertEqual(self.build("--sparkle", "none"), properties)

    def test_is_otherwise_that_of_the_resources(self):
        shipped = plistlib.loads((REPOSITORY / "Kestrune/Resources/Info.plist").read_bytes())
        self.assertEqual(self.build("--sparkle", "none"), shipped)
        texts = (
            "CFBundleIdentifier",
            "CFBundleShortVersionString",
            "CFBundleVersion",
            "LSMinimumSystemVersion",
            "NSHumanReadableCopyright",
        )
        for key in texts:
            self.assertIsInstance(shipped[key], str, key)

    def test_goes_through_cmake_as_it_is(self):
        """CMake fills in the Info.plist of a bundle as configure_file does, and would replace what it takes
        for names of its own."""
        script, copy = self.root / "copy.cmake", self.root / "Info.plist"
        script.write_text(f'configure_file("{self.information_path}" "{copy}")', encoding="utf-8")
        subprocess.run(["cmake", "-P", script], check=True)
        self.assertEqual(copy.read_bytes(), self.information_path.read_bytes())

    def test_with_a_version_that_is_no_text_is_refused(self):
        self.change_information(CFBundleVersion=1)
        self.assert_fails(self.app("--sparkle", "none"), "CFBundleVersion is 1; make it a string")

    def test_has_the_version_that_the_build_has(self):
        shipped = plistlib.loads((REPOSITORY / "Kestrune/Resources/Info.plist").read_bytes())
        project = re.search(r"project\(Kestrune VERSION (\S+)", (REPOSITORY / "CMakeLists.txt").read_text())
        self.assertEqual(shipped["CFBundleShortVersionString"], project[1])


class Parameters(AppTest):
    def test_that_are_wrong_are_named_in_one_line(self):
        for arguments, parts in (
            (["--sparkle", "/nowhere"], ["--sparkle", "/nowhere", "Sparkle.framework"]),
            (["--feed-url", "http://example.org/"], ["--feed-url 'http://example.org/' is no https address"]),
            (["--public-key", "c2hvcnQ="], ["--public-key 'c2hvcnQ='", "base64 of 32 bytes"]),
            (["--public-key", "é"], ["--public-key 'é'"]),
            (["--identity", "A $B"], ["--identity 'A $B' holds a dollar sign"]),
            (["--identity"], ["--identity: expected one argument"]),
            (["--feed"], ["--feed"]),
            (["again"], ["unrecognized arguments: again"]),
        ):
            with self.subTest(arguments=arguments):
                self.assert_fails(self.app("--dry-run", *arguments), "tools/app: ", *parts)

    def test_of_a_framework_that_is_none_are_found_before_the_build(self):
        self.use_mac()
        (self.root / "other/Sparkle.framework").mkdir(parents=True)
        result = self.app("--sparkle", self.root / "other/Sparkle.framework")
        self.assert_fails(result, "--sparkle", "no framework of Sparkle 2")
        self.assertEqual(self.calls(), [])

    def test_do_not_help_where_there_is_no_mac(self):
        self.assert_fails(self.app(), "tools/app: needs a Mac: codesign and ditto and dsymutil", "--dry-run")


class Make(AppTest):
    def make(self, *arguments, **environment):
        return self.call("make", "--silent", "app", *arguments, **environment)

    def test_hands_its_parameters_on(self):
        self.use_mac()
        values = {"SPARKLE": self.framework, "FEED_URL": FEED_URL, "PUBLIC_KEY": PUBLIC_KEY}
        result = self.make(f"IDENTITY={REAL_IDENTITY}", *(f"{key}={value}" for key, value in values.items()))
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn(VERIFICATION, self.calls())
        self.assertIn(REAL_IDENTITY, self.calls()[-2])
        properties = plistlib.loads(self.path(f"{BUNDLE}/Contents/Info.plist").read_bytes())
        self.assertEqual((properties["SUFeedURL"], properties["SUPublicEDKey"]), (FEED_URL, PUBLIC_KEY))

    def test_is_ad_hoc_without_parameters(self):
        self.use_mac()
        self.assertEqual(self.make(SPARKLE="none").returncode, 0)
        self.assertEqual(self.calls()[-2][:4], ["codesign", "--force", "--sign", "-"])


if __name__ == "__main__":
    unittest.main()
