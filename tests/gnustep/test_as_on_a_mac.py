"""The contract tests and the stories with a Mac's own world, run on GNUstep in the place of AppKit.

skipped.tsv says how many tests of which suite are skipped there; every other test has to run and to pass. A
test that is new in one of these suites, or is skipped no more, has to be told there.
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import unittest

TABLE = pathlib.Path(__file__).parents[1] / "mac/skipped.tsv"
PROGRAMS = os.environ.get("KESTRUNE_SUITES_ON_A_MAC", "")
PROCESSORS = 2
SECONDS_FOR_A_TEST = 120
REASON = re.compile(r"^A Mac has no .*\.$", re.MULTILINE)


def expected_skips(text):
    rows = [line.split("\t") for line in text.splitlines()[1:]]
    return {suite: int(skipped) for suite, skipped in rows}


def tests_in(program):
    listed = subprocess.run(
        [program, "--gtest_list_tests"], capture_output=True, encoding="utf-8", check=True, timeout=60
    ).stdout
    suite, names = "", []
    for line in listed.splitlines():
        name = line.partition("#")[0].strip()
        if line.startswith(" "):
            names.append(suite + name)
        else:
            suite = name
    return names


def outcome(program, name):
    """What became of a test, and its output."""
    result = subprocess.run(
        [program, f"--gtest_filter={name}"],
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        encoding="utf-8",
        errors="replace",
        timeout=SECONDS_FOR_A_TEST,
    )
    return judged(result.returncode, result.stdout), result.stdout


def judged(status, output):
    if status != 0:
        return "failed"
    if "[  SKIPPED ]" in output:
        return "skipped" if REASON.search(output) else "failed"
    return "passed" if "[ RUN      ]" in output else "failed"


def differences(outcomes, expected):
    """What is to be said of the outcomes by the names of the tests."""
    skips, suites = {}, {}
    for name, what in outcomes.items():
        suite = name.partition(".")[0]
        suites[suite] = suites.get(suite, 0) + 1
        skips[suite] = skips.get(suite, 0) + (what == "skipped")
    found = [f"{name} failed" for name, what in outcomes.items() if what == "failed"]
    for suite in sorted(set(suites) | set(expected)):
        wanted, there = expected.get(suite, 0), skips.get(suite, 0)
        if wanted != there:
            found.append(
                f"{suite}: {there} of {suites.get(suite, 0)} tests are skipped, and {TABLE.name} has {wanted}"
            )
    return found


class AsOnAMac(unittest.TestCase):
    def test_every_suite_runs_but_for_what_the_table_says(self):
        programs = [program for program in PROGRAMS.split(":") if program]
        self.assertTrue(programs, "KESTRUNE_SUITES_ON_A_MAC names no program")
        tests = [(program, name) for program in programs for name in tests_in(program)]
        with concurrent.futures.ThreadPoolExecutor(PROCESSORS) as threads:
            results = list(threads.map(lambda test: outcome(*test), tests))
        outcomes = {name: what for (_, name), (what, _) in zip(tests, results)}
        self.assertEqual(len(outcomes), len(tests), "two tests have the same name")
        for (_, name), (what, output) in zip(tests, results):
            if what == "failed":
                print(f"{name}:\n{output}")
        found = differences(outcomes, expected_skips(TABLE.read_text(encoding="utf-8")))
        self.assertEqual(found, [], "\n".join(found))
        passed = sum(what == "passed" for what in outcomes.values())
        print(f"{passed} of {len(outcomes)} tests run as on a Mac, the others are skipped there")


class Judgement(unittest.TestCase):
    SKIPPED = "[ RUN      ] A.B\nsomewhere:1: Skipped\nA Mac has no tea.\n[  SKIPPED ] A.B (0 ms)\n"

    def test_takes_a_skip_with_its_reason_alone(self):
        self.assertEqual(judged(0, self.SKIPPED), "skipped")
        self.assertEqual(judged(0, self.SKIPPED.replace("A Mac has no tea.\n", "")), "failed")
        self.assertEqual(judged(1, self.SKIPPED), "failed")

    def test_takes_a_test_that_ran_alone(self):
        self.assertEqual(judged(0, "[ RUN      ] A.B\n[       OK ] A.B (0 ms)\n"), "passed")
        self.assertEqual(judged(0, "[  PASSED  ] 0 tests.\n"), "failed")

    def test_finds_what_is_skipped_and_should_run(self):
        found = differences({"A.B": "skipped", "A.C": "passed"}, {})
        self.assertEqual(found, ["A: 1 of 2 tests are skipped, and skipped.tsv has 0"])

    def test_finds_what_runs_and_should_be_skipped(self):
        found = differences({"A.B": "passed"}, {"A": 1})
        self.assertEqual(found, ["A: 0 of 1 tests are skipped, and skipped.tsv has 1"])

    def test_finds_a_suite_that_is_not_there(self):
        found = differences({"A.B": "passed"}, {"Gone": 1})
        self.assertEqual(found, ["Gone: 0 of 0 tests are skipped, and skipped.tsv has 1"])

    def test_finds_what_failed(self):
        self.assertEqual(differences({"A.B": "failed"}, {}), ["A.B failed"])

    def test_finds_nothing_where_all_is_as_the_table_says(self):
        self.assertEqual(differences({"A.B": "skipped", "C.D": "passed"}, {"A": 1}), [])


if __name__ == "__main__":
    unittest.main()
