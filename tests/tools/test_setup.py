"""tools/setup installs what is missing and nothing else, seen with stand-ins for the system's programs."""

import itertools
import unittest

from debians import BOOKWORM, LATER, NOBLE, TRIXIE, DebianTest, cxx_library, llvm

APT_GET = "apt-get -q -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3"
UPDATE = f"{APT_GET} update"
INSTALL = f"{APT_GET} install --yes --no-install-recommends"
DOWNLOAD = f"{APT_GET} -o APT::Sandbox::User=root download"

GROUPS = ("build", "run", "test", "check", "bench", "simulate", "fuzz", "coverage", "mutants", "resources")
PRESETS = ("gcc", "clang", "sanitize", "coverage", "fuzz")


class Setup(DebianTest):
    def test_is_done_when_everything_is_there(self):
        self.stand(19)
        self.stand_actionlint()
        for release in (BOOKWORM, TRIXIE, NOBLE, LATER):
            self.debian(release=release | llvm(19))
            result, log = self.set_up(*GROUPS, "app", *PRESETS)
            self.assertEqual((result.returncode, result.stdout, result.stderr, log), (0, "", "", []))

    def test_asks_for_names_without_a_version(self):
        for release, backend in ((BOOKWORM, "0.29"), (TRIXIE, "0.32"), (NOBLE, "0.30"), (LATER, "0.33")):
            self.debian(missing=(f"gnustep-back{backend}", "libclang-rt-dev"), user=0, release=release)
            log = self.set_up("test", "clang")[1]
            self.assertTrue(log[-1].endswith(" --no-install-recommends gnustep-back libclang-rt-dev"), log)

    def test_installs_again_what_is_there_in_half(self):
        self.debian(half_done=("xvfb", "gnustep-back0.29"), user=0)
        log = self.set_up("test")[1]
        self.assertTrue(log[-1].endswith(" --no-install-recommends gnustep-back xvfb"), log)

    def test_installs_what_is_missing_once(self):
        self.debian(missing=("g++", "xvfb", "clang", "gcovr"), user=0)
        result, log = self.set_up("test", "clang", "coverage")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(log, [UPDATE, f"{INSTALL} g++ xvfb clang gcovr"])

    def test_installs_for_the_given_group_only(self):
        self.debian(missing=("xvfb", "clang", "gcovr", "valgrind"))
        self.assertEqual(self.set_up()[1], [])
        self.assertTrue(self.set_up("bench")[1][-1].endswith(" --no-install-recommends valgrind xvfb"))

    def test_lets_configured_builds_look_again_for_what_it_installed(self):
        self.configured("gcc")
        self.debian()
        self.set_up()
        self.assertFalse(self.looks_again("gcc"))
        self.debian(missing=("g++",))
        self.set_up()
        self.assertTrue(self.looks_again("gcc"))

    def test_lets_builds_look_again_even_if_it_is_interrupted(self):
        self.configured("gcc")
        self.debian(missing=("g++",), user=0)
        self.program("apt-get", "kill -9 $PPID")
        self.assertEqual(self.set_up()[0].returncode, -9)
        self.assertTrue(self.looks_again("gcc"))

    def test_finishes_an_interrupted_installation_and_tries_again(self):
        self.debian(missing=("g++",), user=0)
        self.program(
            "apt-get",
            """echo "apt-get $*" >> "$LOG"; [[ $* == *update || $(<"$LOG") == *"dpkg --configure -a"* ]]""",
        )
        result, log = self.set_up()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual([line.split()[0] for line in log], ["apt-get", "apt-get", "dpkg", "apt-get"], log)
        self.assertEqual(log[2], "dpkg --configure -a")
        self.assertTrue(log[3].endswith(" --no-install-recommends --fix-broken g++"), log)

    def test_fails_when_the_installation_fails(self):
        self.debian(missing=("g++",))
        self.program("apt-get", "exit 100")
        self.assertEqual(self.set_up()[0].returncode, 100)

    def test_waits_for_another_update_and_goes_on_without(self):
        self.debian(missing=("g++",), user=0)
        self.program("apt-get", """echo "apt-get $*" >> "$LOG"; [[ $* != *update ]]""")
        result, log = self.set_up()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual([line.split()[0] for line in log], ["apt-get", "sleep"] * 3 + ["apt-get"] * 2, log)

    def test_uses_sudo_for_anyone_but_root(self):
        self.debian(missing=("g++",))
        self.assertEqual(self.set_up()[1], ["sudo true", *by_sudo(UPDATE), *by_sudo(f"{INSTALL} g++")])

    def test_says_what_root_has_to_do_without_sudo(self):
        self.debian(missing=("g++",))
        for refuse in (self.without_sudo, self.without_permission):
            refuse()
            result, log = self.set_up()
            self.assertEqual((result.returncode, log), (1, []))
            command = "apt-get update && apt-get install --no-install-recommends g++"
            self.assertIn(f"as root, run: {command}\n", result.stderr)

    def test_refuses_an_unknown_group(self):
        self.debian()
        result, _ = self.set_up("tests")
        self.assertEqual(result.returncode, 1)
        self.assertIn("no group is called 'tests'", result.stderr)

    def mac(self, brew):
        self.program("uname", "echo Darwin")
        self.program("xcode-select", "exit 0")
        self.program("brew", f'echo "brew $*" >> "$LOG"; {brew}')

    def cmake(self, version):
        self.program("cmake", f'echo "cmake version {version}"; echo')

    def test_installs_cmake_on_a_mac(self):
        self.mac("exit 0")
        result, log = self.set_up("run")
        self.assertEqual((result.returncode, log), (0, ["brew install cmake"]))

    def test_installs_googletest_on_a_mac_for_its_tests(self):
        self.mac("[[ $1 != list ]]")
        self.cmake("3.25.0")
        result, log = self.set_up("test")
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        self.assertEqual(log, ["brew list --versions googletest", "brew install googletest"])

    def test_installs_googletest_on_a_mac_once(self):
        self.mac("exit 0")
        self.cmake("3.25.0")
        result, log = self.set_up("test")
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        self.assertEqual(log, ["brew list --versions googletest"])

    def test_goes_on_without_googletest_on_a_mac_and_says_so(self):
        self.mac("exit 1")
        self.cmake("3.25.0")
        result, _ = self.set_up("test")
        self.assertEqual(result.returncode, 0)
        self.assertIn("GoogleTest was not installed; the contract tests and the stories", result.stdout)

    def test_goes_on_without_homebrew_on_a_mac_and_says_so(self):
        self.program("uname", "echo Darwin")
        self.program("xcode-select", "exit 0")
        self.cmake("3.25.0")
        result, _ = self.set_up("test")
        self.assertEqual(result.returncode, 0)
        self.assertIn("no Homebrew to install GoogleTest with", result.stdout)

    def test_says_what_a_mac_needs(self):
        self.program("uname", "echo Darwin")
        self.program("xcode-select", "exit 2")
        self.assertIn("xcode-select --install", self.set_up()[0].stderr)
        self.program("xcode-select", "exit 0")
        result, _ = self.set_up()
        self.assertEqual(result.returncode, 1)
        self.assertIn("please install cmake", result.stderr)
        self.cmake("3.25.0")
        self.assertEqual(self.set_up()[0].returncode, 0)

    def test_refuses_a_cmake_on_a_mac_that_is_too_old(self):
        self.mac("exit 0")
        for version in ("3.24.4", "2.99", "3.9.1"):
            with self.subTest(version):
                self.cmake(version)
                result, log = self.set_up("run")
                self.assertEqual((result.returncode, log), (1, []))
                message = f"tools/setup: cmake {version} is too old; please install 3.25 or later\n"
                self.assertEqual(result.stderr, message)
        self.cmake("4.0.2")
        self.assertEqual(self.set_up("run")[0].returncode, 0)

    def test_says_what_another_system_needs(self):
        self.program("uname", "echo FreeBSD")
        result, _ = self.set_up()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 1)
        self.assertIn("libcairo2-dev", result.stderr)


class Llvm(DebianTest):
    def test_is_installed_and_its_library_unpacked(self):
        for name in (self.folder / "tools/setup", "tools/setup"):
            self.remove_builds()
            self.debian(user=0)
            result, log = self.set_up("app", name=name)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertEqual(log, [*looked_for(19), UPDATE, *installed(19), *unpacked(19)])
            self.assert_stands(19)

    def test_is_installed_with_what_else_is_missing(self):
        self.debian(missing=("curl", "xvfb"), user=0)
        log = self.set_up("test", "app")[1]
        self.assertEqual(log[1:3], [UPDATE, f"{INSTALL} xvfb curl clang-19 lld-19 llvm-19"])

    def test_is_set_up_once(self):
        self.debian(user=0)
        self.set_up("app")
        result, log = self.set_up("app")
        self.assertEqual((result.returncode, result.stdout, result.stderr, log), (0, "", "", []))
        self.assert_stands(19)

    def test_is_left_alone_by_every_other_group(self):
        self.debian()
        self.stand_actionlint()
        self.assertEqual(self.set_up(*GROUPS, *PRESETS)[1], [])
        self.assertFalse((self.folder / "build/llvm").exists())
        self.stand(18)
        self.assertEqual(self.set_up(*GROUPS, *PRESETS)[1], [])
        self.assert_stands(18)

    def test_is_the_oldest_that_is_to_be_had_and_known_to_do(self):
        for had, version in (((14, 19, 21), 19), ((18, 20, 22), 20), ((21, 22, 23), 21)):
            self.remove_builds()
            self.debian(user=0)
            self.serve(*(package for each in had for package in cxx_library(each)))
            log = self.set_up("app")[1]
            looks = [look for each in range(19, version + 1) for look in looked_for(each)]
            self.assertEqual(log, [*looks, UPDATE, *installed(version), *unpacked(version)])
            self.assert_stands(version)

    def test_is_none_that_other_packages_only_mention(self):
        self.debian(user=0)
        self.serve(*cxx_library(21), mentioned=("libc++-20-dev",))
        self.set_up("app")
        self.assert_stands(21)

    def test_stays_at_its_version_when_an_older_one_is_to_be_had(self):
        self.stand(20)
        self.debian(release=BOOKWORM | llvm(20))
        self.serve(*cxx_library(19), *cxx_library(20))
        self.assertEqual(self.set_up("app")[1], [])
        self.assert_stands(20)

    def test_is_installed_again_after_it_was_removed(self):
        self.stand(20)
        for status in ("", "config-files", "half-configured"):
            self.debian(user=0)
            self.serve(*cxx_library(19), *cxx_library(20))
            self.install("clang-20", "llvm-20")
            self.install("lld-20", status=status)
            result, log = self.set_up("app")
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(log, [*looked_for(20), UPDATE, f"{INSTALL} lld-20"])
            self.assert_stands(20)
            self.assertEqual(self.set_up("app")[1], [])

    def test_gives_way_to_the_next_when_it_is_gone_for_good(self):
        for there in ({}, llvm(21)):
            self.stand(20)
            self.configured("cross-arm64")
            self.debian(user=0, release=BOOKWORM | there)
            self.serve(*cxx_library(21))
            self.set_up("app")
            self.assert_stands(21)
            self.assertTrue(self.looks_again("cross-arm64"))

    def test_is_unpacked_again_where_only_a_piece_of_it_stands(self):
        # Without its tools nobody knows the version that stands.
        for piece, looks in (("tools", looked_for(19)), ("libcxx", [])):
            self.debian(user=0, release=BOOKWORM | llvm(19))
            self.stand(19)
            (self.folder / "build/llvm" / piece).unlink()
            self.assertEqual(self.set_up("app")[1], [*looks, *unpacked(19)])
            self.assert_stands(19)

    def test_needs_root_to_install_and_for_nothing_else(self):
        self.debian()
        log = self.set_up("app")[1]
        root = ["sudo true", *by_sudo(UPDATE), *by_sudo(*installed(19))]
        self.assertEqual(log, [*looked_for(19), *root, *unpacked(19)])
        self.remove_builds()
        self.assertEqual(self.set_up("app")[1], [*looked_for(19), *unpacked(19)])

    def test_says_what_root_has_to_install(self):
        self.debian()
        for refuse in (self.without_sudo, self.without_permission):
            refuse()
            result, log = self.set_up("app")
            self.assertEqual((result.returncode, log), (1, looked_for(19)))
            command = "apt-get update && apt-get install --no-install-recommends clang-19 lld-19 llvm-19"
            self.assertIn(f"as root, run: {command}\n", result.stderr)
            self.assertFalse((self.folder / "build").exists())

    def test_says_that_root_has_to_update_the_lists(self):
        self.debian(release=BOOKWORM | llvm(19))
        self.without_sudo()
        for lists in ((), cxx_library(19)):
            self.serve(*cxx_library(19, revision=2), lists=lists)
            result = self.set_up("app")[0]
            self.assertEqual(result.returncode, 1)
            self.assertIn("as root, run: apt-get update\n", result.stderr)
            self.assertFalse((self.folder / "build/llvm").exists())


class LlvmWithOldLists(DebianTest):
    def test_is_found_after_one_update(self):
        # Those of a bare system are empty, others are older than the version.
        for lists in ((), cxx_library(14)):
            self.remove_builds()
            self.debian(user=0)
            self.serve(*cxx_library(14), *cxx_library(20), lists=lists)
            result, log = self.set_up("app")
            self.assertEqual(result.returncode, 0, result.stderr)
            looks = [*looked_for(19, 20, 21), UPDATE, *looked_for(19, 20)]
            self.assertEqual(log, [*looks, *installed(20), *unpacked(20)])
            self.assert_stands(20)

    def test_is_downloaded_after_one_update(self):
        self.debian(user=0, release=BOOKWORM | llvm(19))
        self.serve(*cxx_library(19, revision=2), lists=cxx_library(19))
        result, log = self.set_up("app")
        self.assertEqual(result.returncode, 0, result.stderr)
        first, *others = unpacked(19, revision=2)
        self.assertEqual(log, [*looked_for(19), first, UPDATE, first, *others])
        self.assert_stands(19, revision=2)

    def test_leaves_what_stands_when_new_lists_do_not_help(self):
        self.debian(user=0, release=BOOKWORM | llvm(21))
        self.stand(20)
        library, other = cxx_library(21)
        self.serve(library, lists=(library, other))
        result, log = self.set_up("app")
        download = unpacked(21)[0]
        self.assertEqual(result.returncode, 100)
        self.assertEqual(log, [*looked_for(20, 19, 20, 21), download, UPDATE, download])
        self.assert_stands(20, leftovers=["llvm.new"])

    def test_says_that_there_is_none(self):
        self.debian(missing=("g++",), user=0)
        self.serve(*cxx_library(14))
        result, log = self.set_up("app")
        looks = looked_for(19, 20, 21)
        self.assertEqual((result.returncode, log), (1, [*looks, UPDATE, *looks]))
        message = "no LLVM of a version among 19 20 21 is to be had"
        self.assertIn(f"{message}, or the network is not there; please add a source", result.stderr)


class InterruptedLlvm(DebianTest):
    def test_goes_on_wherever_it_was(self):
        self.debian(user=0)
        self.allow_interruptions()
        for commands in itertools.count():
            self.remove_builds()
            self.debian(user=0)
            # Everything that can be replaced is.
            self.stand(18)
            self.interrupt_after(commands)
            interrupted = self.set_up("app")[0]
            self.interrupt_after(1000)
            self.assertEqual(self.set_up("app")[0].returncode, 0)
            self.assert_stands(19)
            if interrupted.returncode == 0:
                break
            self.assertEqual(interrupted.returncode, -9, interrupted.stderr)
        self.assertGreater(commands, 20)

    def test_uses_nothing_that_was_downloaded_in_half(self):
        self.debian(user=0, release=BOOKWORM | llvm(19))
        self.write({"a folder/build/llvm.new/packages/libc++-19-dev_0_all.deb": "ha"})
        self.write({"a folder/build/llvm.new/usr/half": ""})
        self.assertEqual(self.set_up("app")[1], [*looked_for(19), *unpacked(19)])
        self.assert_stands(19)


def by_sudo(*commands):
    return [line for each in commands for line in (f"sudo env DEBIAN_FRONTEND=noninteractive {each}", each)]


def looked_for(*versions):
    return [f"apt-cache show libc++-{version}-dev" for version in versions]


def installed(version):
    return [f"{INSTALL} clang-{version} lld-{version} llvm-{version}"]


def unpacked(version, revision=1):
    """The calls that unpack LLVM's C++ library: first the one that downloads it."""
    names = [f"libc++-{version}-dev", f"libc++abi-{version}-dev"]
    place = "tools/../build/llvm.new"
    extract = [f"dpkg-deb --extract {place}/packages/{name}_{revision}_all.deb {place}" for name in names]
    return [f"{DOWNLOAD} {' '.join(names)}", *extract]


if __name__ == "__main__":
    unittest.main()
