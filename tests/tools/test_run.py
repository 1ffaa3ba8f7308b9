"""tools/run builds Kestrune for this Mac, signs it and opens it, seen with stand-ins for a Mac's programs."""

import os
import signal
import subprocess
import sys
import threading
import unittest
from unittest import mock

from releases import REAL_IDENTITY, STAND_INS, ReleaseTest
from trees import REPOSITORY

sys.path.insert(0, str(REPOSITORY / "tools"))

from releasing import running  # noqa: E402
from releasing.steps import Failure  # noqa: E402

BUILT = "build/mac/mac/Kestrune.app"
BUNDLE = "build/mac/Kestrune.app"
ERRORS = "build/mac/Kestrune.stderr"
IDENTIFIER = "org.kestrune.Kestrune"
SIGNED = ["--identity", REAL_IDENTITY]


class RunTest(ReleaseTest):
    def setUp(self):
        super().setUp()
        self.use_mac()

    def run_tool(self, *arguments):
        return self.call("tools/run", *arguments)

    def shown(self, *arguments):
        result = self.run_tool("--dry-run", *arguments)
        self.assertEqual((result.returncode, result.stderr, self.calls()), (0, "", []))
        return self.commands(result.stdout)

    def assert_opened(self, *arguments):
        result = self.run_tool(*arguments)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout.splitlines()

    def program_of(self, bundle):
        return self.checkout / bundle / "Contents/MacOS/Kestrune"


class Steps(RunTest):
    def test_are_shown_in_order(self):
        checkout = self.checkout.resolve()
        sign = ["codesign", "--force", "--sign", REAL_IDENTITY, "--timestamp=none", BUNDLE]
        self.assertEqual(
            self.shown(*SIGNED),
            [
                ["security", "find-identity", "-p", "codesigning"],
                ["cmake", "--preset", "mac"],
                ["cmake", "--build", "--preset", "mac", "--parallel", str(os.cpu_count())],
                ["build/mac/mac/kestrune-self-check"],
                ["osascript", "-l", "JavaScript", "tools/releasing/quit.js", IDENTIFIER],
                ["rm", "-rf", BUNDLE, ERRORS],
                ["ditto", "--noextattr", "--noqtn", BUILT, BUNDLE],
                sign,
                ["codesign", "--verify", "--strict", "--verbose=2", BUNDLE],
                ["open", "--stderr", f"{checkout}/{ERRORS}", f"{checkout}/{BUNDLE}"],
            ],
        )

    def test_are_run_as_they_are_shown(self):
        shown = self.logged(self.shown(*SIGNED))
        self.assert_opened(*SIGNED)
        self.assertEqual(self.calls(), shown)
        self.assertEqual(len(shown), 9)

    def test_ask_no_keychain_for_an_ad_hoc_signature(self):
        shown = self.shown()
        self.assertEqual(self.shown("--identity", ""), shown)
        self.assertNotIn("security", [command[0] for command in shown])
        self.assertIn(["codesign", "--force", "--sign", "-", "--timestamp=none", BUNDLE], shown)

    def test_name_files_that_are_there(self):
        script = self.shown()[3][3]
        self.assertIn("runningApplicationsWithBundleIdentifier", (REPOSITORY / script).read_text("utf-8"))

    def test_make_targets_pass_the_certificate(self):
        result = self.call("make", "run", f"DEV_IDENTITY={REAL_IDENTITY}")
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        self.assertEqual(self.calls()[0][0], "security")
        self.assertTrue(self.program_of(BUNDLE).is_file())


class Words(RunTest):
    ERRORS = f"Kestrune runs. Its standard error is in {ERRORS}."

    def test_are_where_its_errors_are(self):
        self.assertEqual(self.assert_opened(*SIGNED)[-1], self.ERRORS)
        self.assertEqual((self.checkout / ERRORS).read_text("utf-8"), "what it says\n")

    def test_warn_of_a_signature_that_the_next_build_loses(self):
        errors, warning = self.assert_opened()[-2:]
        self.assertEqual(errors, self.ERRORS)
        self.assertIn("asks for the permission again after each changed build", warning)
        self.assertIn(f"`tccutil reset Accessibility {IDENTIFIER}`", warning)


class FailedRun(RunTest):
    def test_has_no_such_certificate(self):
        result = self.run_tool("--identity", "Nobody")
        message = "tools/run: the keychain has no certificate 'Nobody' to sign with; security find"
        self.assert_fails(result, message)
        self.assertEqual([call[0] for call in self.calls()], ["security"])

    def test_has_a_part_of_the_name_of_a_certificate(self):
        self.assert_opened("--identity", "Some One")

    def test_does_not_compile_and_leaves_the_bundle_before(self):
        self.assert_opened()
        self.use_mac(cmake="exit 1")
        self.assert_fails(self.run_tool(), "tools/run: failed with exit status 1: cmake --preset mac")
        self.assertTrue(self.program_of(BUNDLE).is_file())

    def test_is_not_signed_and_leaves_no_bundle(self):
        self.use_mac(codesign="exit 1")
        self.assert_fails(self.run_tool(), "tools/run: failed with exit status 1: codesign --force")
        self.assertFalse((self.checkout / BUNDLE).exists())

    def test_is_no_mac(self):
        self.use_programs({})
        self.assert_fails(self.run_tool(), "tools/run: needs a Mac: codesign and ditto")

    def test_has_a_name_that_make_would_change(self):
        self.assert_fails(self.run_tool("--identity", "$A"), "tools/run: --identity '$A' holds a dollar sign")

    def test_goes_on_when_the_platform_is_not_as_expected(self):
        self.use_mac(**{"kestrune-self-check": "exit 1"})
        result = self.run_tool()
        self.assertEqual(result.returncode, 0, result.stderr)
        line = "failed with exit status 1: build/mac/mac/kestrune-self-check; Kestrune logs the same"
        self.assertTrue(result.stderr.startswith(line), result.stderr)
        self.assertTrue(self.program_of(BUNDLE).is_file())


class RunningKestrune(RunTest):
    def test_has_ended_before_the_new_one_is_opened(self):
        running_one = subprocess.Popen(["cat"], stdin=subprocess.PIPE)
        self.addCleanup(running_one.stdin.close)
        threading.Thread(target=running_one.wait).start()
        process = running_one.pid
        is_gone = f"if kill -0 {process} 2>/dev/null; then exit 1; fi"
        self.use_mac(osascript=f"echo {process}; kill {process}", open=f"{is_gone}\n{STAND_INS['open']}")
        self.assert_opened()
        self.assertEqual(running_one.wait(), -signal.SIGTERM)

    def test_is_told_by_its_process(self):
        self.use_mac(osascript="echo Kestrune")
        self.assert_fails(self.run_tool(), "tools/run: osascript printed no process: 'Kestrune'")


class WaitForTheEnd(unittest.TestCase):
    """Of one process, on a clock that each look moves on."""

    def wait(self, has_ended):
        sent, now = [], iter(range(1000))

        def kill(process, number):
            if has_ended(sent):
                raise ProcessLookupError
            if number:
                sent.append((process, number))

        run = running.Run("-")
        run._take_processes("41\n")
        clock = mock.patch.multiple("time", sleep=mock.DEFAULT, monotonic=lambda: next(now))
        with clock, mock.patch("os.kill", kill):
            run._wait()
        return sent

    def setUp(self):
        folder = os.getcwd()
        os.chdir(REPOSITORY)
        self.addCleanup(os.chdir, folder)

    def test_sends_nothing_to_what_has_ended(self):
        self.assertEqual(self.wait(lambda sent: True), [])

    def test_ends_what_does_not_quit(self):
        self.assertEqual(self.wait(lambda sent: sent), [(41, signal.SIGKILL)])

    def test_names_what_cannot_be_ended(self):
        with self.assertRaisesRegex(Failure, "^Kestrune still runs, as process 41; quit it"):
            self.wait(lambda sent: False)


if __name__ == "__main__":
    unittest.main()
