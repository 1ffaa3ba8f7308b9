"""tools/setup installs what is missing and nothing else, seen with stand-ins for the system's programs."""

import shutil
import subprocess
import unittest

from trees import REPOSITORY, TreeTest

# Each package with what else it provides, as dpkg tells it. These have the same name in every release.
COMMON = dict.fromkeys(
    """ca-certificates clang clang-format clang-tidy cmake fonts-inter g++ gcovr git gnustep-base-runtime
    imagemagick libbenchmark-dev libcairo2-dev libclang-rt-dev libgmock-dev libgnustep-gui-dev libgtest-dev
    libpango1.0-dev
    librapidcheck-dev librsvg2-bin ninja-build python3 valgrind x11-utils xauth xdotool xvfb""".split(),
    "",
)
SDL_AND_PKG_CONFIG = {"libsdl2-dev": "", "pkg-config": ""}
BOOKWORM = SDL_AND_PKG_CONFIG | {"gnustep-back0.29": "gnustep-back"}
TRIXIE = SDL_AND_PKG_CONFIG | {"gnustep-back0.32": "gnustep-back", "g++-14": "c++-compiler, c++abi2-dev"}
NOBLE = SDL_AND_PKG_CONFIG | {"gnustep-back0.30": "gnustep-back"}
# A release to come: what had a package of its own is provided by its successor.
LATER = {
    "gnustep-back0.33": "gnustep-back",
    "pkgconf": "pkg-config (= 2.3.0-1), pkgconfig",
    "libsdl2-compat-dev": "libsdl2-dev (= 2.32.50-1)",
}


class Setup(TreeTest):
    def program(self, name, text):
        self.write({f"bin/{name}": f"#!/bin/bash\n{text}\n"})
        (self.root / "bin" / name).chmod(0o755)

    def set_up(self, *groups):
        """Runs it with the stand-ins only, and returns what they and it said."""
        for tool in ("bash", "cat", "dirname", "env", "rm", "tr"):
            link = self.root / "bin" / tool
            link.parent.mkdir(exist_ok=True)
            if not link.exists():
                link.symlink_to(f"/usr/bin/{tool}")
        # It touches the builds of the repository that it lies in, so it runs as a copy.
        (self.root / "tools").mkdir(exist_ok=True)
        shutil.copy(REPOSITORY / "tools/setup", self.root / "tools")
        result = subprocess.run(
            ["/usr/bin/bash", str(self.root / "tools/setup"), *groups],
            env={"PATH": str(self.root / "bin"), "LOG": str(self.root / "log")},
            capture_output=True,
            text=True,
        )
        log = self.root / "log"
        return result, log.read_text(encoding="utf-8").splitlines() if log.exists() else []

    def debian(self, missing=(), user=1000, release=BOOKWORM, half_done=()):
        """A system that has every package that the release has for the groups, but for the missing ones."""
        self.program("uname", "echo Linux")
        self.program("id", f"echo {user}")
        self.program("apt-get", 'echo "apt-get $*" >> "$LOG"')
        self.program("dpkg", 'echo "dpkg $*" >> "$LOG"')
        self.program("sleep", 'echo "sleep $*" >> "$LOG"')
        self.program("sudo", 'echo "sudo" >> "$LOG"; "$@"')
        lines = [
            f"{'half-configured' if package in half_done else 'installed'} {package} {provided}"
            for package, provided in (COMMON | release).items()
            if package not in missing
        ]
        self.program("dpkg-query", f"cat <<'END'\n{chr(10).join(lines)}\nEND")

    def test_is_done_when_everything_is_there(self):
        groups = ("build", "run", "test", "check", "bench", "simulate", "fuzz", "coverage", "resources")
        presets = ("gcc", "clang", "sanitize", "coverage", "fuzz")
        for release in (BOOKWORM, TRIXIE, NOBLE, LATER):
            self.debian(release=release)
            result, log = self.set_up(*groups, *presets)
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
        self.assertEqual(len(log), 2, log)
        self.assertTrue(log[0].endswith(" update"), log)
        self.assertTrue(log[1].endswith(" install --yes --no-install-recommends g++ xvfb clang gcovr"), log)

    def test_installs_for_the_given_group_only(self):
        self.debian(missing=("xvfb", "clang", "gcovr", "valgrind"))
        self.assertEqual(self.set_up()[1], [])
        self.assertTrue(self.set_up("bench")[1][-1].endswith(" --no-install-recommends valgrind xvfb"))

    def test_lets_configured_builds_look_again_for_what_it_installed(self):
        self.write({"build/gcc/CMakeCache.txt": "", "build/gcc/build.ninja": ""})
        self.debian()
        self.set_up()
        self.assertTrue((self.root / "build/gcc/CMakeCache.txt").exists())
        self.debian(missing=("g++",))
        self.set_up()
        self.assertEqual([path.name for path in (self.root / "build/gcc").iterdir()], ["build.ninja"])

    def test_lets_builds_look_again_even_if_it_is_interrupted(self):
        self.write({"build/gcc/CMakeCache.txt": ""})
        self.debian(missing=("g++",), user=0)
        self.program("apt-get", "kill -9 $PPID")
        self.assertEqual(self.set_up()[0].returncode, -9)
        self.assertFalse((self.root / "build/gcc/CMakeCache.txt").exists())

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
        log = self.set_up()[1]
        self.assertEqual((log[0], log[2], len(log)), ("sudo", "sudo", 4), log)

    def test_says_what_root_has_to_do_without_sudo(self):
        self.debian(missing=("g++",))
        (self.root / "bin/sudo").unlink()
        result, log = self.set_up()
        self.assertEqual((result.returncode, log), (1, []))
        self.assertIn("apt-get install --no-install-recommends g++", result.stderr)

    def test_refuses_an_unknown_group(self):
        self.debian()
        result, _ = self.set_up("tests")
        self.assertEqual(result.returncode, 1)
        self.assertIn("no group is called 'tests'", result.stderr)

    def test_installs_cmake_on_a_mac(self):
        self.program("uname", "echo Darwin")
        self.program("xcode-select", "exit 0")
        self.program("brew", 'echo "brew $*" >> "$LOG"')
        result, log = self.set_up("test")
        self.assertEqual((result.returncode, log), (0, ["brew install cmake"]))

    def test_says_what_a_mac_needs(self):
        self.program("uname", "echo Darwin")
        self.program("xcode-select", "exit 2")
        self.assertIn("xcode-select --install", self.set_up()[0].stderr)
        self.program("xcode-select", "exit 0")
        result, _ = self.set_up()
        self.assertEqual(result.returncode, 1)
        self.assertIn("please install cmake", result.stderr)
        self.program("cmake", "exit 0")
        self.assertEqual(self.set_up()[0].returncode, 0)

    def test_says_what_another_system_needs(self):
        self.program("uname", "echo FreeBSD")
        result, _ = self.set_up()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 1)
        self.assertIn("libcairo2-dev", result.stderr)


if __name__ == "__main__":
    unittest.main()
