"""The Makefile in a folder with a space in its name, seen with stand-ins for what it calls."""

import os
import shutil
import subprocess
import time
import unittest

from trees import REPOSITORY, TreeTest


class MakefileTest(TreeTest):
    # As CMake leaves a build, with what it was told about warnings.
    CONFIGURES = """
        echo "cmake $*" >> "$LOG"
        [[ $1 != --fresh ]] || shift
        if [[ $1 == --preset ]]; then
            mkdir -p "build/$2"
            touch "build/$2/build.ninja"
            echo "$4" > "build/$2/CMakeCache.txt"
        fi"""

    def setUp(self):
        super().setUp()
        self.folder = self.root / "a folder"
        self.log = self.root / "log"
        self.write({"a folder/CMakePresets.json": "{}"})
        (self.folder / "tools").mkdir()
        for name in ("Makefile", "tools/configure"):
            shutil.copy(REPOSITORY / name, self.folder / name)
        self.program("bin/cmake", self.CONFIGURES)
        self.program("bin/ctest", "printf '%s\\n' ctest \"$@\" >> \"$LOG\"")
        self.program("a folder/tools/setup", 'echo "setup $*" >> "$LOG"')
        self.program("a folder/tools/app", 'echo "app $*" >> "$LOG"')
        self.program("a folder/tools/check", 'echo "check $*" >> "$LOG"')
        self.program("a folder/tests/mutants/by_rule", 'echo "by_rule $*" >> "$LOG"')
        self.program("a folder/tools/count-tests", 'echo "count-tests $*" >> "$LOG"')
        self.program("a folder/build/gcc/desk/kestrune-desk", 'echo "desk $*" >> "$LOG"')

    def program(self, path, text):
        self.write({path: f"#!/usr/bin/env bash\n{text}\n"})
        (self.root / path).chmod(0o755)

    def make(self, *arguments, **environment):
        """Runs it without a display, and returns what it called."""
        self.log.write_text("", encoding="utf-8")
        kept = {name: value for name, value in os.environ.items() if name in ("HOME", "LANG")}
        subprocess.run(
            ["make", *arguments],
            cwd=self.folder,
            env=kept | {"PATH": f"{self.root}/bin:/usr/bin:/bin", "LOG": str(self.log)} | environment,
            capture_output=True,
            check=True,
        )
        return self.log.read_text(encoding="utf-8").splitlines()

    def configurations(self, *arguments, **environment):
        lines = self.make(*arguments, **environment)
        return [line for line in lines if line.startswith(("cmake --preset", "cmake --fresh"))]

    def configuration(self, preset, warnings_are_errors, how="--preset"):
        state = "ON" if warnings_are_errors else "OFF"
        return [f"cmake {how} {preset} -D CMAKE_COMPILE_WARNING_AS_ERROR:BOOL={state}"]


class Configuration(MakefileTest):
    def test_happens_once(self):
        self.assertEqual(self.configurations("run"), self.configuration("gcc", False))
        self.assertEqual(self.configurations("run"), [])

    def test_happens_again_when_it_was_interrupted(self):
        self.configurations("run")
        (self.folder / "build/gcc/build.ninja").unlink()
        self.assertEqual(self.configurations("run"), self.configuration("gcc", False))

    def test_happens_again_when_the_presets_have_changed(self):
        self.configurations("run")
        later = time.time() + 10
        os.utime(self.folder / "CMakePresets.json", (later, later))
        self.assertEqual(self.configurations("run"), self.configuration("gcc", False))

    def test_starts_from_scratch_once_when_something_was_installed(self):
        self.configurations("run")
        self.write({"a folder/build/gcc/configure-afresh": ""})
        self.assertEqual(self.configurations("run"), self.configuration("gcc", False, "--fresh --preset"))
        self.assertEqual(self.configurations("run"), [])

    def test_starts_from_scratch_until_it_has_worked(self):
        self.configurations("run")
        self.write({"a folder/build/gcc/configure-afresh": ""})
        self.program("bin/cmake", "exit 1")
        with self.assertRaises(subprocess.CalledProcessError):
            self.make("run")
        self.program("bin/cmake", self.CONFIGURES)
        self.assertEqual(self.configurations("run"), self.configuration("gcc", False, "--fresh --preset"))

    def test_happens_again_where_warnings_become_errors(self):
        self.configurations("run")
        self.assertEqual(self.configurations("run", WARNINGS_AS_ERRORS="ON"), self.configuration("gcc", True))
        self.assertEqual(self.configurations("run", WARNINGS_AS_ERRORS="ON"), [])


class Warnings(MakefileTest):
    def test_are_errors_in_the_check(self):
        implementations = self.configuration("gcc", False)
        self.assertEqual(self.configurations("check"), implementations + self.configuration("check", True))

    def test_are_none_for_whoever_builds(self):
        self.assertEqual(self.configurations("test"), self.configuration("gcc", False))
        self.assertEqual(self.configurations("test", "PRESET=clang"), self.configuration("clang", False))


class WhatMacsGet(MakefileTest):
    APP = "app --system Linux --sparkle none --folder build/gcc/app --preset gcc"
    OTHERS = ["cmake --build build/cross-arm64", "cmake --build build/cross-x86_64"]

    def test_is_set_up_and_built_before_the_tests(self):
        calls = self.make("test")
        self.assertEqual(calls[0], "setup test app gcc")
        self.assertEqual(calls[calls.index("ctest") - 3 : calls.index("ctest")], [self.APP, *self.OTHERS])

    def test_is_not_built_under_the_sanitizers(self):
        calls = self.make("test", "PRESET=sanitize")
        self.assertIn("ctest", calls)
        self.assertFalse([line for line in calls if line.startswith("app ") or "cross" in line])

    def test_is_emulated_for_the_other_processor_and_compared_with_this_one(self):
        calls = self.make("test", "PRESET=arm64")
        self.assertEqual(calls[0], "setup test app arm64")
        self.assertIn("cmake --build build/arm64 --target mach-programs", calls)
        programs = "cmake --build build/gcc --target kestrune-desk kestrune_home scenarios_sim"
        before_the_tests = calls[calls.index("ctest") - 4 : calls.index("ctest")]
        self.assertEqual(before_the_tests, [self.APP, *self.OTHERS, programs])
        self.assertEqual(calls[calls.index("--label-regex") + 1], "mach")


class OnAMac(MakefileTest):
    """What make would run there, which is Apple's, CMake's, or in the repository."""

    PROGRAMS = {"cmake", "ctest", "rm"}
    BUILD = 'cmake --build --preset mac --parallel "$(sysctl -n hw.ncpu)" --target all mac-tests'

    def setUp(self):
        super().setUp()
        self.program("bin/uname", "echo Darwin")

    def shown(self, target):
        result = subprocess.run(
            ["make", "--dry-run", target],
            cwd=self.folder,
            env={"PATH": f"{self.root}/bin:/usr/bin:/bin"},
            capture_output=True,
            text=True,
            check=True,
        )
        return result.stdout.replace("\\\n", " ").splitlines()

    def test_run_is_two_scripts(self):
        self.assertEqual(self.shown("run"), ["tools/setup run", 'tools/run --identity "$DEV_IDENTITY"'])

    def test_app_is_two_scripts(self):
        updates = '--feed-url "$FEED_URL" --public-key "$PUBLIC_KEY"'
        application = f'tools/app --system Darwin --identity "$IDENTITY" --sparkle "$SPARKLE" {updates}'
        lines = [" ".join(line.split()) for line in self.shown("app")]
        self.assertEqual(lines, ["tools/setup app", application])

    def test_test_builds_and_runs_what_a_mac_tests(self):
        setup, configure, build, run = self.shown("test")
        self.assertEqual([setup, configure, build], ["tools/setup test", "cmake --preset mac", self.BUILD])
        self.assertIn("; ctest --test-dir build/mac  --no-tests=error ", run)
        self.assertTrue(run.endswith("; status=$?; tools/count-tests build/mac/tests.xml && exit $status"))

    def test_begins_with_what_is_there(self):
        for target in ("run", "app", "test"):
            for line in self.shown(target):
                program = line.split()[0]
                known = program in self.PROGRAMS or os.access(REPOSITORY / program, os.X_OK)
                self.assertTrue(known, line)


class Mutants(MakefileTest):
    def test_are_those_somebody_thought_of_and_some_by_rule(self):
        calls = self.make("mutants")
        self.assertIn("cmake --build build/mutants --target mistakes", calls)
        self.assertEqual(calls[calls.index("--label-regex") + 1], "mistakes")
        self.assertEqual(calls[-1], "by_rule --build build/mutants --seed 1 --count 30")

    def test_are_made_in_a_folder_by_rule_alone(self):
        calls = self.make("mutants", "FOLDER=a folder", "SEED=7", "COUNT=all")
        self.assertNotIn("ctest", calls)
        self.assertEqual(calls[-1], "by_rule --build build/mutants --seed 7 --count all a folder")


class FolderWithASpace(MakefileTest):
    def test_holds_the_results_of_the_tests(self):
        self.assertIn(f"{self.folder}/build/gcc/tests.xml", self.make("test"))

    def test_holds_the_desk_and_what_it_draws_for_the_documents(self):
        self.assertEqual(self.make("run")[-1], "desk ")
        self.program("a folder/tools/draw-documents", 'echo "draw-documents $*" >> "$LOG"')
        self.assertEqual(self.make("pictures")[-1], "draw-documents build/gcc/desk/kestrune-desk")

    def test_is_checked(self):
        """Of which files there are, the build is asked again."""
        self.assertIn("cmake --build build/check --target build.ninja", self.make("check"))
        self.assertEqual(self.make("check")[-1], "check --build build/check --build build/gcc")


if __name__ == "__main__":
    unittest.main()
