"""A function of the seam that an implementation lacks, and one that no contract test calls, are found."""

import subprocess
import unittest

from trees import TreeTest
from checks import contract

HEADER = """
namespace kestrune {
class Timer {
public:
    struct State;
    Timer(State&);
    void invalidate();
    void invalidate(int);
};
class Delegate {
    virtual void willFire(const Timer& timer) noexcept = 0;
};
}
"""

IMPLEMENTATION = HEADER + """
namespace kestrune {
struct Timer::State { State(); };
Timer::State::State() {}
Timer::Timer(State&) {}
void Timer::invalidate() {}
void Timer::invalidate(int) {}
namespace OWN { void helper() {} }
}
"""

SUITE = HEADER + """
void test(kestrune::Timer& timer) {
    timer.invalidate();
    timer.invalidate(1);
}
"""

FILES = {
    "platform/Timer.h": HEADER,
    "tests/contract/TimerContract.cpp": "TEST(Timer, TellsItsDelegate) { willFire(timer); }",
}


class Contract(TreeTest):
    def build(self, *, sim=IMPLEMENTATION, mac=IMPLEMENTATION, suite=SUITE):
        """Compiles what the build under test consists of."""
        for name, text in {"sim": sim, "mac": mac}.items():
            archive = self.root / f"build/clang/{name}/libkestrune_{name}.a"
            subprocess.run(["ar", "qc", archive, self.compile(f"build/clang/{name}", text, name)], check=True)
        self.compile(f"build/clang/{contract.SUITES}", suite)
        return self.root / "build/clang"

    def compile(self, folder, text, own=""):
        self.write({f"{folder}/source.cc": text.replace("OWN", own)})
        source = self.root / folder / "source.cc"
        subprocess.run(["c++", "-c", source, "-o", source.with_suffix(".o")], check=True)
        return source.with_suffix(".o")

    def test_passes_when_both_have_what_the_suites_call(self):
        build = self.build()
        self.assert_clean(contract, FILES, builds=[build])
        examined = self.run_check(contract, {}, [build]).examined
        self.assertEqual(examined, "2 functions and 1 callbacks of the seam")

    def test_looks_into_the_build_that_is_built(self):
        build = self.build()
        self.assert_clean(contract, FILES, builds=[self.root / "build/check", build])

    def test_finds_a_function_that_one_of_them_lacks(self):
        build = self.build(mac=IMPLEMENTATION.replace("void Timer::invalidate(int) {}", ""))
        self.assert_found(
            contract, FILES, "platform:1: only sim/ has kestrune::Timer::invalidate(int);", builds=[build]
        )

    def test_finds_a_function_that_no_suite_calls(self):
        build = self.build(suite=SUITE.replace("timer.invalidate();", ""))
        self.assert_found(
            contract,
            FILES,
            "tests/contract:1: no contract test calls kestrune::Timer::invalidate();",
            builds=[build],
        )

    def test_finds_a_callback_that_no_suite_has(self):
        build = self.build()
        files = FILES | {"tests/contract/TimerContract.cpp": "TEST(Timer, TellsNobody) {}"}
        self.assert_found(
            contract, files, "platform/Timer.h:1: no contract test has willFire", builds=[build]
        )

    def test_does_not_pass_without_a_build(self):
        self.assert_found(contract, FILES, ".:1: no build to look into")

    def test_does_not_pass_with_a_build_that_is_not_built(self):
        findings = self.findings(contract, FILES, [self.root / "build/clang"])
        self.assertEqual(len(findings), 3, findings)
        self.assertTrue(all("is not built" in finding for finding in findings), findings)


if __name__ == "__main__":
    unittest.main()
