"""Random mutants of a small project: what is made of its sources, and what its tests make of that."""

import os
import pathlib
import select
import shutil
import signal
import subprocess
import sys
import time
import unittest

from trees import REPOSITORY, TreeTest

sys.path.append(str(REPOSITORY / "tests/mutants"))
import judging  # noqa: E402

PYTHON = "/usr/bin/python3"  # which has the system's packages
HAS_LIBCLANG = subprocess.run([PYTHON, "-c", "import clang.cindex"], capture_output=True).returncode == 0

PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Small LANGUAGES CXX)
set(CMAKE_BUILD_TYPE Debug)
set(CMAKE_CXX_FLAGS_DEBUG "-O0")
add_library(small STATIC base/Small.cpp base/Other.cpp)
target_include_directories(small PUBLIC "${PROJECT_SOURCE_DIR}")
set_target_properties(small PROPERTIES UNITY_BUILD "${JOINED}")
foreach(name IN ITEMS base_tests ui_tests properties_tests kestrune_tests)
    add_executable(${name} tests/${name}.cpp)
    target_link_libraries(${name} PRIVATE small)
endforeach()
"""
HEADER = """#pragma once
int twice(int value);
int unused(int value);
inline int half(int value) { return value / 2; }
"""
SOURCE = """#include "base/Small.h"
int twice(int value) {
    int result = value;
    result += value;
    return result;
}
int unused(int value) { return value - 3; }
inline int never(int value) { return value * 5; }
int always() {
    int result = 7;
    result = 7;
    return result;
}
"""
KEPT = "int Kept = 1;\n"
TEST = """#include "base/Small.h"
#include <cstdio>
int main() {
    const bool isRight = twice(4) == 8 && half(9) == 4;
    std::puts(isRight ? "[  PASSED  ]" : "[  FAILED  ] Small.IsRight (0 ms)");
    return isRight ? 0 : 1;
}
"""
BY = "by base_tests: [  FAILED  ] Small.IsRight (0 ms)"
NOTHING = "int main() {}\n"
SLOW = """#include <unistd.h>
#include <cstdio>
int main() {
    std::FILE* const file = std::fopen("process", "w");
    std::fprintf(file, "%d\\n", getpid());
    std::fclose(file);
    sleep(30);
}
"""


class MutantsTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.folder = self.root / "a folder"
        shutil.copytree(
            REPOSITORY / "tests" / "mutants",
            self.folder / "tests" / "mutants",
            ignore=shutil.ignore_patterns("__pycache__", "equal"),
        )
        (self.folder / "ui").mkdir()
        self.sources = {
            "a folder/CMakeLists.txt": PROJECT,
            "a folder/base/Small.h": HEADER,
            "a folder/base/Small.cpp": SOURCE,
            "a folder/base/Other.cpp": KEPT,
            "a folder/tests/base_tests.cpp": TEST,
            "a folder/tests/ui_tests.cpp": NOTHING,
            "a folder/tests/properties_tests.cpp": NOTHING,
            "a folder/tests/kestrune_tests.cpp": NOTHING,
        }

    def command(self, *arguments):
        return [PYTHON, str(self.folder / "tests/mutants/by_rule"), *arguments]

    def by_rule(self, *arguments):
        return subprocess.run(self.command(*arguments), capture_output=True, text=True, timeout=250)

    def configure_small(self, *options):
        self.write(self.sources)
        subprocess.run(
            ["cmake", "-S", self.folder, "-B", self.folder / "build/mutants", "-G", "Ninja", *options],
            capture_output=True,
            check=True,
        )

    def report(self, *arguments, status=1):
        """What is said of the mutants of a folder, of which some survive unless it ends well."""
        result = self.by_rule(*arguments, "base")
        self.assertEqual((result.returncode, result.stderr), (status, ""), result.stdout)
        return result.stdout.splitlines()

    def list_as_equal(self, text):
        self.write({"a folder/tests/mutants/equal/base.txt": text})


class BadInput(MutantsTest):
    def assert_refused(self, message, *arguments):
        result = self.by_rule(*arguments)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (2, "", f"by_rule: {message}\n"))

    def test_is_refused_in_a_line(self):
        self.assert_refused("there is no folder base", "base")
        self.assert_refused("ui has no source files", "ui")
        self.assert_refused("the count has to be 1 at least", "--count", "0", "ui")
        self.assert_refused("argument --seed: invalid int value: 'x'", "--seed", "x", "ui")
        self.assert_refused(
            "no tests are known that judge docs; use Kestrune, base, desk, mac, platform, replay, sim, ui",
            "docs",
        )
        self.assert_refused(
            "no tests are known that judge .; use Kestrune, base, desk, mac, platform, replay, sim, ui", ""
        )
        self.assert_refused("there is no folder Kestrune")


@unittest.skipUnless(HAS_LIBCLANG, "libclang's bindings for Python are not installed")
class ByRule(MutantsTest):
    def test_judges_each_mutant_that_changes_the_code(self):
        self.configure_small()
        *report, last = self.report("--count", "all")
        for line in (
            f"killed: base/Small.cpp:4: arithmetic: += -> -=: {BY}",
            f"killed: base/Small.cpp:4: statement removed: result += value -> nothing: {BY}",
            f"killed: base/Small.h:4: arithmetic: / -> *: {BY}",
            f"killed: base/Small.h:4: constant: 2 -> 3: {BY}",
            "SURVIVED: base/Small.cpp:7: arithmetic: - -> +",
            "SURVIVED: base/Small.cpp:7: constant: 3 -> 0",
            "SURVIVED: base/Other.cpp:1: constant: 1 -> 2",
            "not counted: base/Small.cpp:8: arithmetic: * -> /: compiles to the same code",
            "not counted: base/Small.cpp:11: statement removed: result = 7 -> nothing: "
            "compiles to the same code when optimised",
        ):
            self.assertIn(line, report)
        killed = len([line for line in report if line.startswith("killed: ")])
        counted = killed + len([line for line in report if line.startswith("SURVIVED: ")])
        share = f"{100 * killed / counted:.1f} %"
        self.assertEqual(
            last, f"application: {killed} of {counted} mutants killed, {share}; 1 may survive, seed 1"
        )

    def test_counts_none_that_is_listed_as_equal_to_the_original(self):
        self.sources |= {"a folder/base/Small.h": "#pragma once\n", "a folder/base/Small.cpp": KEPT}
        self.sources["a folder/base/Other.cpp"] = "int Two[] = {2, 2};\n"
        self.sources["a folder/tests/base_tests.cpp"] = NOTHING
        self.configure_small()
        survivors = [
            "SURVIVED: base/Other.cpp:1: constant: 2 -> 0",
            "SURVIVED: base/Other.cpp:1: constant: 2 -> 3",
            "SURVIVED: base/Small.cpp:1: constant: 1 -> 0",
            "SURVIVED: base/Small.cpp:1: constant: 1 -> 2",
        ]
        last = "application: 0 of {} mutants killed, 0.0 %; 1 may survive, seed 1"
        *report, total = self.report("--count", "all")
        self.assertEqual((sorted(set(report)), total), (survivors, last.format(6)))
        two = "base/Other.cpp\n    int Two[] = {2, 2};\n    2 -> 0 (2)\nNobody looks at it.\n"
        self.list_as_equal(two)
        *report, total = self.report("--count", "all")
        self.assertEqual((sorted(set(report)), total), (survivors, last.format(5)))
        self.list_as_equal(
            f"# Both.\n\n{two}    2 -> 0\n    2 -> 3\n    2 -> 3 (2)\n\n"
            "base/Small.cpp\n    int Kept = 1;\n    1 -> 0\nNobody asks.\n"
        )
        self.assertEqual(self.report("--count", "all", status=0), [survivors[-1], last.format(1)])

    def test_says_what_is_listed_and_not_there(self):
        self.configure_small()
        entries = (
            ("base/Gone.cpp", "int gone;", "1 -> 2"),
            ("base/Other.cpp", "int Kept = 2;", "2 -> 3"),
            ("base/Other.cpp", "int Kept = 1;", "1 -> 3"),
        )
        self.list_as_equal("\n".join("{}\n    {}\n    {}\nAs it is.\n".format(*each) for each in entries))
        *_, first, second, third = self.report("--count", "all")
        self.assertEqual(
            [first, second, third],
            ["listed as equal to the original, but not there: " + ": ".join(each) for each in entries],
        )

    def test_says_what_is_listed_without_a_reason(self):
        self.configure_small()
        self.list_as_equal("base/Other.cpp\n    int Kept = 1;\n    1 -> 2\n")
        result = self.by_rule("base")
        self.assertEqual(result.returncode, 1)
        self.assertIn("base.txt: of base/Other.cpp it has no line, no change or no reason", result.stderr)

    def test_counts_nothing_that_another_file_does_not_compile_with(self):
        self.sources["a folder/base/Small.h"] = HEADER + "constexpr int size() { return 4; }\n"
        self.sources["a folder/base/Small.cpp"] = SOURCE + "int sized() { return size(); }\n"
        self.sources["a folder/tests/ui_tests.cpp"] = (
            '#include "base/Small.h"\nstatic_assert(size() == 4);\n' + NOTHING
        )
        self.configure_small()
        report = self.report("--count", "all")
        begin = "not counted: base/Small.h:5: constant: 4 -> 5: does not compile"
        self.assertEqual(len([line for line in report if line.startswith(begin)]), 1, report)

    def test_judges_files_that_are_compiled_as_one(self):
        self.configure_small("-D", "JOINED=ON")
        report = self.report("--count", "all")
        self.assertIn("SURVIVED: base/Small.cpp:7: arithmetic: - -> +", report)
        self.assertIn(f"killed: base/Small.cpp:4: arithmetic: += -> -=: {BY}", report)

    def test_makes_the_same_mutants_of_the_same_seed(self):
        self.configure_small()

        def some(seed):
            return self.by_rule("--count", "4", "--seed", seed, "base").stdout.splitlines()

        first = some("7")
        self.assertEqual(some("7"), first)
        self.assertNotEqual(some("8")[:-1], first[:-1])
        self.assertRegex(first[-1], r"^application: \d of 4 mutants killed")

    def test_makes_the_same_mutants_when_another_file_has_changed(self):
        self.configure_small()
        first = self.report("--count", "all")
        self.sources["a folder/base/Other.cpp"] = "\n" + KEPT + KEPT.replace("Kept", "More")
        self.configure_small()
        second = self.report("--count", "all")

        def in_small(report):
            return [line for line in report if "base/Small.cpp" in line]

        self.assertEqual(in_small(first), in_small(second))
        self.assertEqual(len(second), len(first) + 2)

    def test_leaves_sources_and_build_as_they_are(self):
        self.configure_small()
        self.by_rule("--count", "1", "base")
        built = {path: path.stat().st_mtime_ns for path in (self.folder / "build").rglob("*.[oa]")}
        self.by_rule("--count", "5", "--seed", "2", "base")
        for path, text in self.sources.items():
            self.assertEqual((self.root / path).read_text(encoding="utf-8"), text)
        for path, when in built.items():
            self.assertEqual(path.stat().st_mtime_ns, when, path)

    def test_judges_nothing_with_tests_that_fail_anyway(self):
        self.sources["a folder/tests/ui_tests.cpp"] = "int main() { return 3; }\n"
        self.configure_small()
        result = self.by_rule("base")
        self.assertEqual(result.returncode, 1)
        self.assertIn("ui_tests fails without a mistake", result.stderr)

    def test_ends_what_it_has_started_when_it_is_ended(self):
        self.sources["a folder/tests/properties_tests.cpp"] = SLOW
        self.configure_small()
        running = subprocess.Popen(self.command("base"), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        process = self.folder / "build/mutants/process"
        while not process.is_file() or not process.read_text():
            self.assertIsNone(running.poll())
            time.sleep(0.1)
        started = time.monotonic()
        running.send_signal(signal.SIGTERM)
        self.assertEqual(running.wait(), 128 + signal.SIGTERM)
        self.assertLess(time.monotonic() - started, 20)
        self.assertFalse(pathlib.Path("/proc", process.read_text().strip()).exists())


class Programs(unittest.TestCase):
    def test_leave_nothing_behind_when_they_end(self):
        """Of what the program started nothing holds the end of the pipe any more."""
        reading, writing = os.pipe()
        self.addCleanup(os.close, reading)
        left = ["sh", "-c", "tail -f /dev/null >/dev/null 2>&1 & echo started"]
        self.assertEqual(judging.run(left, pass_fds=(writing,)), (0, "started\n"))
        os.close(writing)
        self.assertEqual(select.select([reading], [], [], 10)[0], [reading])


if __name__ == "__main__":
    unittest.main()
