"""tools/app builds both halves of Kestrune.app on Linux, seals and packs it, seen with stand-ins for LLVM.

What the seal is worth, tests/macho asks.
"""

import hashlib
import os
import plistlib
import shutil
import stat
import unittest
import zipfile

from releases import FEED_URL, LOG, PUBLIC_KEY, REAL_IDENTITY, ReleaseTest
from trees import REPOSITORY

BUNDLE = "build/cross/Kestrune.app"
ARCHIVE = "build/cross/Kestrune.zip"
FRAMEWORK = f"{BUNDLE}/Contents/Frameworks/Sparkle.framework"
PROGRAM = "Contents/MacOS/Kestrune"
TINY_PROGRAMS = REPOSITORY / "tests/fuzz/corpus/mach-file"
CHECKS = "build/gcc/tests/macho"
LLVM = "build/llvm/tools/bin"

# Builds for a Mac when it is told which processor's folder, and the checks when it is told their preset.
CMAKE = (
    LOG
    + f"""if [[ $1 == --build && $2 == build/cross-* ]]; then
    contents=$2/mac/Kestrune.app/Contents
    mkdir -p "$contents/MacOS" "$contents/Resources"
    cp Kestrune/Resources/Info.plist "$contents"
    cp -R Kestrune/Resources/*.lproj "$contents/Resources"
    cp "{TINY_PROGRAMS}/${{2#build/cross-}}.macho" "$contents/MacOS/Kestrune"
    chmod 755 "$contents/MacOS/Kestrune"
elif [[ $1 == --build && $3 == gcc ]]; then
    mkdir -p {CHECKS}
    cp "${{0%/*}}"/kestrune-check-* {CHECKS}
fi"""
)
STAND_INS = {
    "cmake": CMAKE,
    "llvm-strip": LOG + 'cp "$3" "$2"',
    "llvm-lipo": LOG + f'cp "{TINY_PROGRAMS}/universal.macho" "${{@: -1}}"; chmod 755 "${{@: -1}}"',
    "dsymutil": LOG + '[[ $3 == --flat ]] || mkdir -p "$4/Contents/Resources/DWARF"',
    "llvm-dwarfdump": LOG + 'echo "UUID: 40 (arm64) $2"; echo "UUID: 41 (x86_64) $2"',
    "kestrune-check-seal": LOG + 'echo "arm64: sealed"; echo "x86_64: sealed"',
    "kestrune-check-limits": LOG,
}


class LinuxTest(ReleaseTest):
    def setUp(self):
        super().setUp()
        self.write({"checkout/Kestrune/Resources/en.lproj/Localizable.strings": '"a" = "a";\n'})
        self.use_linux()

    def use_linux(self, **changes):
        self.use_programs({**STAND_INS, **changes})
        (self.root / "bin/chmod").symlink_to(shutil.which("chmod"))
        # As set-up leaves it.
        tools = self.checkout / "build/llvm/tools"
        tools.mkdir(parents=True, exist_ok=True)
        (tools / "bin").unlink(missing_ok=True)
        (tools / "bin").symlink_to(self.root / "bin")

    def app(self, *arguments, **environment):
        return self.call("tools/app", "--system", "Linux", *arguments, **environment)

    def build(self, *arguments, **environment):
        result = self.app(*arguments, **environment)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout

    def path(self, name):
        return self.checkout / name

    def digest(self):
        return hashlib.sha256(self.path(ARCHIVE).read_bytes()).hexdigest()


class DryRun(LinuxTest):
    def test_shows_every_command_in_order(self):
        halves = [f"build/cross/Kestrune-{processor}" for processor in ("arm64", "x86_64")]
        builds = [f"build/cross-{processor}" for processor in ("arm64", "x86_64")]
        built = [f"{build}/mac/Kestrune.app/{PROGRAM}" for build in builds]
        extraction = [[f"{LLVM}/dsymutil", "--oso-prepend-path", build] for build in builds]
        symbols = f"{BUNDLE}.dSYM"
        others = "build/cross/symbols"
        both = f"{symbols}/Contents/Resources/DWARF/Kestrune"
        result = self.app("--dry-run", "--sparkle", "none")
        self.assertEqual((result.returncode, result.stderr, self.calls()), (0, "", []))
        self.assertEqual(
            self.commands(result.stdout),
            [
                ["tools/configure", "cross-arm64"],
                ["cmake", "--build", "build/cross-arm64", "--target", "Kestrune"],
                ["tools/configure", "cross-x86_64"],
                ["cmake", "--build", "build/cross-x86_64", "--target", "Kestrune"],
                ["rm", "-rf", ARCHIVE, BUNDLE, symbols],
                ["mkdir", "-p", "build/cross"],
                ["cp", "-R", "-H", "build/cross-arm64/mac/Kestrune.app", BUNDLE],
                [f"{LLVM}/llvm-strip", "-o", halves[0], built[0]],
                [f"{LLVM}/llvm-strip", "-o", halves[1], built[1]],
                [f"{LLVM}/llvm-lipo", "-create", *halves, "-output", f"{BUNDLE}/{PROGRAM}"],
                [*extraction[0], "-o", symbols, built[0]],
                [*extraction[1], "--flat", "-o", others, built[1]],
                [f"{LLVM}/llvm-lipo", "-create", both, others, "-output", both],
                ["rm", "-f", *halves, others],
                [f"{LLVM}/llvm-dwarfdump", "--uuid", symbols],
                [f"{LLVM}/llvm-dwarfdump", "--uuid", f"{BUNDLE}/{PROGRAM}"],
                ["tools/configure", "gcc"],
                [
                    *["cmake", "--build", "--preset", "gcc"],
                    *["--target", "kestrune-check-limits", "kestrune-check-seal"],
                ],
                [f"{CHECKS}/kestrune-check-seal", BUNDLE, "mac/sdk"],
                [f"{CHECKS}/kestrune-check-limits", f"{BUNDLE}/{PROGRAM}", "mac/sdk"],
            ],
        )

    def test_embeds_the_framework_as_on_a_mac(self):
        commands = self.commands(self.app("--dry-run", "--sparkle", self.framework).stdout)
        place = commands.index(["cp", "-R", "-H", str(self.framework), FRAMEWORK])
        self.assertEqual(commands[place - 1], ["mkdir", "-p", f"{BUNDLE}/Contents/Frameworks"])
        services = [f"{FRAMEWORK}/XPCServices", f"{FRAMEWORK}/Versions/B/XPCServices"]
        self.assertEqual(commands[place + 1], ["rm", "-rf", *services])


class Build(LinuxTest):
    def test_leaves_a_sealed_bundle_its_symbols_and_an_archive(self):
        self.build("--sparkle", "none")
        sealed = plistlib.loads(self.path(f"{BUNDLE}/Contents/_CodeSignature/CodeResources").read_bytes())
        self.assertEqual(list(sealed["files2"]), ["Resources/en.lproj/Localizable.strings"])
        left = sorted(path.name for path in self.path("build/cross").iterdir())
        self.assertEqual(left, ["Kestrune.app", "Kestrune.app.dSYM", "Kestrune.zip"])

    def test_ends_with_the_path_and_a_line_for_each_half(self):
        lines = self.build("--sparkle", "none").splitlines()
        self.assertEqual(lines[-3:], [f"{BUNDLE} is built and sealed", "arm64: sealed", "x86_64: sealed"])

    def test_puts_the_feed_and_the_key_in_before_it_seals(self):
        arguments = ["--sparkle", "none", "--feed-url", FEED_URL, "--public-key", PUBLIC_KEY]
        self.build(*arguments)
        information = self.path(f"{BUNDLE}/Contents/Info.plist").read_bytes()
        properties = plistlib.loads(information)
        self.assertEqual((properties["SUFeedURL"], properties["SUPublicEDKey"]), (FEED_URL, PUBLIC_KEY))
        program = self.path(f"{BUNDLE}/{PROGRAM}").read_bytes()
        self.assertEqual(program.count(hashlib.sha256(information).digest()), 2)

    def test_ends_without_an_archive_when_a_check_does_not_hold(self):
        for check in ("seal", "limits"):
            self.use_linux()
            self.assertEqual(self.app("--sparkle", "none").returncode, 0)
            self.assertTrue(self.path(ARCHIVE).exists())
            self.use_linux(**{f"kestrune-check-{check}": "exit 1"})
            beginning = f"tools/app: failed with exit status 1: {CHECKS}/kestrune-check-{check} {BUNDLE}"
            self.assert_fails(self.app("--sparkle", "none"), beginning)
            self.assertFalse(self.path(ARCHIVE).exists())

    def test_ends_when_the_symbols_are_of_another_program(self):
        self.use_linux(**{"llvm-dwarfdump": 'echo "UUID: ${#2} (arm64) $2"; echo "UUID: 41 (x86_64) $2"'})
        message = "tools/app: build/cross/Kestrune.app.dSYM has the UUIDs"
        self.assert_fails(self.app("--sparkle", "none"), message)

    def test_ends_when_lines_of_the_symbols_are_missing(self):
        self.use_linux(dsymutil=STAND_INS["dsymutil"] + "; for name in A B; do echo no $name.o >&2; done")
        message = "tools/app: the symbols are not whole: no A.o and 1 more"
        self.assert_fails(self.app("--sparkle", "none"), message)

    def test_takes_the_halves_in_either_order_of_their_uuids(self):
        self.use_linux(**{"llvm-dwarfdump": 'echo "UUID: 42 (arm64) $2"; echo "UUID: 41 (x86_64) $2"'})
        result = self.app("--sparkle", "none")
        self.assertEqual(result.returncode, 0, result.stderr)

    def test_ends_when_a_half_is_missing(self):
        self.use_linux(**{"llvm-dwarfdump": 'echo "UUID: 40 (arm64) $2"'})
        self.assert_fails(self.app("--sparkle", "none"), "and the program [('40', 'arm64')]")

    def test_ends_when_a_language_was_left_out(self):
        self.write({"checkout/Kestrune/Resources/de.lproj/Localizable.strings": '"a" = "b";\n'})
        self.use_linux(cmake=CMAKE.replace("*.lproj", "en.lproj"))
        name = "Kestrune/Resources/de.lproj/Localizable.strings"
        result = self.app("--sparkle", "none")
        message = f"{name} is not in {BUNDLE}/Contents/Resources as it is"
        self.assert_fails(result, f"tools/app: {message}; mac/CMakeLists.txt says what is taken")


class Framework(LinuxTest):
    def make_framework(self, folder):
        framework = super().make_framework(folder)
        version = framework / "Versions/B"
        (version / "Resources").mkdir()
        updater = version / "Updater.app/Contents"
        for path, name in ((version / "Resources", "Sparkle"), (updater, "Updater")):
            properties = {"CFBundleExecutable": name, "CFBundleIdentifier": f"org.example.{name}"}
            (path / "Info.plist").write_bytes(plistlib.dumps(properties))
        return framework

    def sealed(self, folder):
        return plistlib.loads((folder / "_CodeSignature/CodeResources").read_bytes())["files2"]

    def test_is_sealed_from_the_inside_out(self):
        self.build("--sparkle", self.framework)
        self.assertEqual(
            sorted(self.sealed(self.path(f"{BUNDLE}/Contents")))[0], "Frameworks/Sparkle.framework"
        )
        version = self.sealed(self.path(f"{FRAMEWORK}/Versions/B"))
        self.assertEqual(sorted(version), ["Autoupdate", "Resources/Info.plist", "Updater.app"])
        for name in ("Autoupdate", "Updater.app"):
            self.assertRegex(version[name]["requirement"], r'^cdhash H"\w{40}" or cdhash H"\w{40}"$')

    def test_keeps_its_links_here_and_in_the_archive(self):
        self.build("--sparkle", self.framework)
        self.assertEqual(os.readlink(self.path(f"{FRAMEWORK}/Updater.app")), "Versions/Current/Updater.app")
        with zipfile.ZipFile(self.path(ARCHIVE)) as packed:
            name = "Kestrune.app/Contents/Frameworks/Sparkle.framework/Versions/Current"
            self.assertTrue(stat.S_ISLNK(packed.getinfo(name).external_attr >> 16))
            self.assertEqual(packed.read(name), b"B")

    def test_is_copied_through_a_link(self):
        (self.root / "linked").mkdir()
        link = self.root / "linked/Sparkle.framework"
        link.symlink_to(self.framework)
        self.build("--sparkle", link)
        self.assertFalse(self.path(FRAMEWORK).is_symlink())

    def test_with_something_else_among_its_code_is_refused(self):
        (self.framework / "Versions/B/notes").write_text("Nothing to run.\n" * 3, encoding="utf-8")
        result = self.app("--sparkle", self.framework)
        self.assert_fails(result, "/Versions/B/notes lies among code and is no Mach-O file")


class SameBytes(LinuxTest):
    """The archive depends on what is built and on nothing else."""

    def setUp(self):
        super().setUp()
        self.build("--sparkle", "none")
        self.first = self.digest()

    def test_when_it_is_built_again(self):
        self.build("--sparkle", "none")
        self.assertEqual(self.digest(), self.first)

    def test_in_another_folder_at_another_time(self):
        self.checkout = self.checkout.rename(self.root / "a folder of another name")
        for path in self.path("Kestrune").rglob("*"):
            os.utime(path, (1, 1))
        self.build("--sparkle", "none")
        self.assertEqual(self.digest(), self.first)

    def test_with_another_umask(self):
        before = os.umask(0o077)
        self.addCleanup(os.umask, before)
        self.build("--sparkle", "none")
        self.assertEqual(self.digest(), self.first)

    def test_in_another_locale(self):
        self.build("--sparkle", "none", LC_ALL="C", TZ="Pacific/Auckland")
        self.assertEqual(self.digest(), self.first)

    def test_but_not_of_other_contents(self):
        self.build("--sparkle", "none", "--feed-url", FEED_URL)
        self.assertNotEqual(self.digest(), self.first)


class Parameters(LinuxTest):
    def test_name_no_certificate(self):
        result = self.app("--identity", REAL_IDENTITY, "--sparkle", "none")
        self.assert_fails(result, "tools/app: --identity", "a certificate signs on a Mac only")
        self.assertEqual(self.calls(), [])

    def test_say_what_to_do_without_a_network(self):
        self.pin_archive()
        self.use_linux(curl=LOG + "exit 6")
        self.assert_fails(self.app(), "failed with exit status 6: curl", "SPARKLE=none")

    def test_say_what_to_install(self):
        (self.checkout / "build/llvm/tools/bin").unlink()
        self.assert_fails(self.app("--sparkle", "none"), f"{LLVM} is not there; tools/setup app installs it")
        self.assertEqual(self.calls(), [])


class Make(LinuxTest):
    def test_builds_for_the_system_that_it_is_on(self):
        self.use_linux(uname="echo Linux", dpkg="exit 0")
        self.write({"checkout/tools/setup": "#!/bin/sh\n"})
        result = self.call("make", "--silent", "app", "SPARKLE=none", f"FEED_URL={FEED_URL}")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        properties = plistlib.loads(self.path(f"{BUNDLE}/Contents/Info.plist").read_bytes())
        self.assertEqual(properties["SUFeedURL"], FEED_URL)


if __name__ == "__main__":
    unittest.main()
