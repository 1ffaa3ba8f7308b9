"""tools/setup installs what is missing and nothing else, seen with stand-ins for the system's programs."""

import shutil
import subprocess
import unittest

from trees import REPOSITORY, TreeTest


class Setup(TreeTest):
    def program(self, name, text):
        self.write({f"bin/{name}": f"#!/bin/bash\n{text}\n"})
        (self.root / "bin" / name).chmod(0o755)

    def set_up(self, *groups):
        """Runs it with the stand-ins only, and returns what they and it said."""
        for tool in ("bash", "dirname", "env", "rm", "tr"):
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

    def debian(self, missing=(), user=1000):
        self.program("uname", "echo Linux")
        self.program("id", f"echo {user}")
        self.program("apt-get", 'echo "apt-get $*" >> "$LOG"')
        self.program("sudo", 'echo "sudo" >> "$LOG"; "$@"')
        cases = "".join(f'[[ $package == "{name}" ]] && continue; ' for name in missing)
        self.program(
            "dpkg-query", f'for package in "${{@:3}}"; do {cases} echo -n "installed=$package "; done; exit 1'
        )

    def test_is_done_when_everything_is_there(self):
        self.debian()
        groups = ("build", "run", "test", "check", "bench", "simulate", "fuzz", "coverage")
        presets = ("gcc", "clang", "sanitize", "coverage", "fuzz")
        result, log = self.set_up(*groups, *presets)
        self.assertEqual((result.returncode, result.stdout, result.stderr, log), (0, "", "", []))

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

    def test_fails_when_the_installation_fails(self):
        self.debian(missing=("g++",))
        self.program("apt-get", "exit 100")
        self.assertNotEqual(self.set_up()[0].returncode, 0)

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
