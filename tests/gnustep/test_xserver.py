"""The X server that the tests share: started once, found again, replaced when it is gone, and stopped."""

import os
import pathlib
import select
import signal
import subprocess
import sys
import tempfile
import unittest

import xserver

SCRIPT = pathlib.Path(xserver.__file__)


class SharedServer(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = pathlib.Path(folder.name) / "display"
        self.addCleanup(self.call, "stop")

    def call(self, action):
        return subprocess.run([sys.executable, str(SCRIPT), action, str(self.file)], timeout=60).returncode

    def start(self):
        """The display and the process after a start."""
        self.assertEqual(self.call("start"), 0)
        display, process = self.file.read_text().split()
        return display, int(process)

    def answers(self, display):
        return subprocess.run(["xdpyinfo", "-display", display], capture_output=True).returncode == 0

    def test_answers_after_the_start(self):
        display, _ = self.start()
        self.assertTrue(self.answers(display))

    def test_is_the_same_after_a_second_start(self):
        self.assertEqual(self.start(), self.start())

    def test_is_replaced_when_it_is_gone(self):
        _, process = self.start()
        watched = os.pidfd_open(process)
        os.kill(process, signal.SIGKILL)
        select.select([watched], [], [])
        os.close(watched)
        display, other = self.start()
        self.assertNotEqual(other, process)
        self.assertTrue(self.answers(display))

    def test_is_beside_others(self):
        displays = []
        for _ in range(2):
            display, server = xserver.launch("640x480")
            self.addCleanup(server.wait)
            self.addCleanup(server.terminate)
            displays.append(display)
        self.assertNotEqual(*displays)
        self.assertTrue(all(map(self.answers, displays)))

    def test_is_not_taken_for_another_process(self):
        self.file.write_text(f":99 {os.getpid()}\n")
        display, process = self.start()
        self.assertNotEqual(process, os.getpid())
        self.assertTrue(self.answers(display))

    def test_is_gone_after_the_stop(self):
        display, _ = self.start()
        self.assertEqual(self.call("stop"), 0)
        self.assertFalse(self.answers(display))
        self.assertFalse(self.file.exists())

    def test_may_be_stopped_when_there_is_none(self):
        self.assertEqual(self.call("stop"), 0)


if __name__ == "__main__":
    unittest.main()
