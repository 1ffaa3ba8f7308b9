"""The shell steps of the workflows run here, with stand-ins for what takes long or is Apple's."""

import os
import re
import shlex
import shutil
import subprocess
import unittest

import yaml

from releases import LOG, STAND_INS, ReleaseTest
from test_makefile import MakefileTest
from trees import REPOSITORY

FOLDER = REPOSITORY / ".github/workflows"
# As a runner starts what `shell: bash` says.
SHELL = ("bash", "--noprofile", "--norc", "-eo", "pipefail")
ACTIONS = {"actions/checkout", "actions/upload-artifact"}


def workflows():
    return {
        path.name: yaml.safe_load(path.read_text(encoding="utf-8")) for path in sorted(FOLDER.iterdir())
    }


def job(name):
    return workflows()["proof.yml"]["jobs"][name]


def steps_of(workflow):
    return [step for each in workflow["jobs"].values() for step in each["steps"]]


def unknown_commands(script):
    """The lines that are neither a script of the repository with its arguments nor a target of make."""
    makefile = (REPOSITORY / "Makefile").read_text(encoding="utf-8")
    targets = set(re.findall(r"^([a-z][a-z-]*):", makefile, re.MULTILINE))
    unknown = []
    for line in script.splitlines():
        program, *arguments = shlex.split(line)
        if program == "make":
            known = bool(arguments) and all(word in targets or "=" in word for word in arguments)
        else:
            known = (REPOSITORY / program).is_file() and os.access(REPOSITORY / program, os.X_OK)
        if not known:
            unknown.append(line)
    return unknown


class Workflows(unittest.TestCase):
    def test_are_those_whose_steps_run_here(self):
        self.assertEqual(list(workflows()), ["proof.yml"])

    def test_call_what_is_in_the_repository(self):
        for name, workflow in workflows().items():
            for step in steps_of(workflow):
                self.assertEqual(unknown_commands(step.get("run", "")), [], name)

    def test_are_read_by_somebody_who_notices_other_commands(self):
        for line in ("make tests", "make", "tools/picture out", "cmake --build build/gcc", "docs/HACKING.md"):
            self.assertEqual(unknown_commands(f"make test\n{line}\n"), [line])

    def test_may_read_and_no_more(self):
        for name, workflow in workflows().items():
            self.assertEqual(workflow["permissions"], {"contents": "read"}, name)
            for each in workflow["jobs"].values():
                self.assertNotIn("permissions", each, name)
            for step in steps_of(workflow):
                action = step.get("uses", "").split("@")[0]
                self.assertIn(action, {"", *ACTIONS}, name)
                if action == "actions/checkout":
                    self.assertIs(step["with"]["persist-credentials"], False, name)

    def test_end_and_give_way_to_the_next_commit(self):
        for name, workflow in workflows().items():
            self.assertIs(workflow["concurrency"]["cancel-in-progress"], True, name)
            for each in workflow["jobs"].values():
                self.assertLessEqual(each["timeout-minutes"], 120, name)

    def test_start_the_shell_that_the_tests_start(self):
        for name, workflow in workflows().items():
            self.assertEqual(workflow["defaults"]["run"]["shell"], SHELL[0], name)
            self.assertFalse([step for step in steps_of(workflow) if "shell" in step], name)


class JobTest:
    """Runs the steps of a job, one after the other, in `checkout`."""

    def run_steps(self, steps, expected):
        """Each step is to call what is expected of it, and to write what the next one keeps."""
        expected = iter(expected.items())
        script = ""
        for step in steps:
            if "run" in step:
                script, beginnings = next(expected, ("", ()))
                self.assertEqual(step["run"], script, "no test runs this step")
                self.assert_calls_in_order(self.calls_of(script), beginnings)
            elif step["uses"].startswith("actions/upload-artifact@"):
                self.assert_written(step["with"]["path"], script)
        self.assertIsNone(next(expected, None), "no step is like this")

    def assert_calls_in_order(self, calls, beginnings):
        rest = iter(calls)
        for beginning in beginnings:
            self.assertTrue(any(call.startswith(beginning) for call in rest), f"{beginning!r} of {calls}")

    def assert_written(self, path, script):
        self.assertIn(path, shlex.split(script))
        pictures = [file for file in (self.checkout / path).rglob("*") if file.suffix == ".png"]
        self.assertTrue(pictures, f"nothing is in {path}")

    def script_file(self, script):
        path = self.root / "step.sh"
        path.write_text(script, encoding="utf-8")
        return path

    def assert_run_fails(self, message, change=lambda steps: None):
        """What is said of the job, or of it with a change in its steps."""
        steps = job(self.JOB)["steps"]
        change(steps)
        with self.assertRaisesRegex(AssertionError, message):
            self.run_steps(steps, self.CALLS)


class LinuxSteps(JobTest, MakefileTest):
    JOB = "debian"
    # Of the system before the first step, no make among it.
    TOOLS = "bash dirname env find grep ln mkdir rm touch".split()
    APT_GET = 'echo "apt-get $*" >> "$LOG"; [[ $2 != install ]] || ln -s "$MAKE" "${0%/*}/make"'
    DESK = """echo "desk $*" >> "$LOG"; mkdir -p "$2"; echo picture > "$2/window.png" """
    CALLS = {
        ".ci/run": (
            "apt-get -q update",
            "apt-get -q install --yes --no-install-recommends make",
            "setup test app gcc",
            "cmake --preset gcc -D CMAKE_COMPILE_WARNING_AS_ERROR:BOOL=ON",
            "cmake --build build/gcc --target all",
            "ctest --test-dir build/gcc --no-tests=error",
            "setup check app check",
            "check --build build/check --build build/gcc",
            "setup test app arm64",
            "ctest --test-dir build/arm64 --label-regex mach",
            "setup test sanitize",
            "ctest --test-dir build/sanitize --no-tests=error",
            "setup coverage",
            "ctest --test-dir build/coverage --label-regex unit",
            "coverage build/coverage",
            "setup mutants",
            "ctest --test-dir build/mutants --label-regex mistakes",
            "by_rule --build build/mutants --seed 1 --count 30",
            "count-tests build/gcc/tests.xml build/arm64/tests.xml build/sanitize/tests.xml build/coverage/"
            "tests.xml build/mutants/",
        ),
        "tools/draw-gallery out/pictures": (
            "desk --gallery out/pictures",
            "desk --gallery out/pictures --dark",
        ),
    }

    def setUp(self):
        super().setUp()
        self.checkout = self.folder
        for name in (".ci/run", "tools/draw-gallery"):
            (self.checkout / name).parent.mkdir(exist_ok=True)
            shutil.copy(REPOSITORY / name, self.checkout / name)
        for tool in self.TOOLS:
            (self.root / "bin" / tool).symlink_to(shutil.which(tool))
        self.program("bin/uname", "case $1 in -m) echo x86_64 ;; *) echo Linux ;; esac")
        self.program("bin/apt-get", self.APT_GET)
        self.program("bin/sudo", '"$@"')
        self.program("bin/ctest", 'echo "ctest $*" >> "$LOG"')
        self.program("a folder/tools/coverage", 'echo "coverage $*" >> "$LOG"')
        self.program("a folder/tests/mutants/by_rule", 'echo "by_rule $*" >> "$LOG"')
        self.program("a folder/build/gcc/desk/kestrune-desk", self.DESK)

    def calls_of(self, script):
        self.log.write_text("", encoding="utf-8")
        result = subprocess.run(
            [*SHELL, self.script_file(script)],
            cwd=self.checkout,
            env={"PATH": str(self.root / "bin"), "LOG": str(self.log), "MAKE": shutil.which("make")},
            capture_output=True,
            text=True,
        )
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return self.log.read_text(encoding="utf-8").splitlines()

    def test_run(self):
        self.run_steps(job(self.JOB)["steps"], self.CALLS)

    def test_are_all_known(self):
        self.assert_run_fails("no step is like this", lambda steps: steps.clear())
        self.assert_run_fails("no test runs this step", lambda steps: steps.append({"run": "make bench"}))

    def test_keep_what_was_written(self):
        def keep_another(steps):
            steps[-1]["with"]["path"] = "out/picture"

        self.assert_run_fails("'out/picture' not found", keep_another)

    def test_write_what_is_kept(self):
        self.program("a folder/build/gcc/desk/kestrune-desk", 'echo "desk $*" >> "$LOG"')
        self.assert_run_fails("nothing is in out/pictures")

    def test_fail_where_a_program_fails(self):
        self.program("a folder/tools/check", "exit 1")
        self.assert_run_fails("=== failed: make check")

    def test_say_what_builds_the_program_that_paints(self):
        (self.checkout / "build/gcc/desk/kestrune-desk").unlink()
        self.assert_run_fails("tools/draw-gallery: build/gcc/desk/kestrune-desk is not there; run: make test")


class MacSteps(JobTest, ReleaseTest):
    JOB = "mac"
    PICTURES = (
        LOG
        + """for look in light dark; do
    mkdir -p "$1/$look"
    echo picture > "$1/$look/window.png"
done"""
    )
    # The build leaves it beside the application.
    CMAKE = (
        STAND_INS["cmake"]
        + """
mkdir -p build/mac/mac
ln -sf "$(type -p kestrune-pictures)" build/mac/mac"""
    )
    CTEST = (
        LOG
        + """echo '<testsuite><testcase name="one" status="run"/></testsuite>' > "${@: -1}" """
    )
    CALLS = {
        "make test": ("cmake --preset mac", "cmake --build --preset mac", "ctest --test-dir build/mac"),
        "make app": (
            "curl --fail",
            "cmake --build",
            "dsymutil ",
            "strip ",
            "codesign --force",
            "codesign --verify --strict",
        ),
        "tools/draw-gallery out/pictures": ("kestrune-pictures out/pictures",),
    }

    def setUp(self):
        super().setUp()
        for name in ("count-tests", "draw-gallery"):
            shutil.copy(REPOSITORY / "tools" / name, self.checkout / "tools")
        self.pin_archive()
        self.programs = {"cmake": self.CMAKE, "ctest": self.CTEST, "sysctl": "echo 3"}
        self.use_mac(**self.programs, **{"kestrune-pictures": self.PICTURES})

    def calls_of(self, script):
        self.log_path.unlink(missing_ok=True)
        result = self.call(*SHELL, self.script_file(script))
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return [" ".join(call) for call in self.calls()]

    def test_run(self):
        self.run_steps(job(self.JOB)["steps"], self.CALLS)

    def test_are_all_known(self):
        self.assert_run_fails("no test runs this step", lambda steps: steps.append({"run": "make bench"}))

    def test_say_what_builds_the_program_that_draws(self):
        self.use_mac(**self.programs | {"cmake": STAND_INS["cmake"]})
        self.assert_run_fails(
            "tools/draw-gallery: build/mac/mac/kestrune-pictures is not there; run: make test")


if __name__ == "__main__":
    unittest.main()
