"""Steps run in order, and when one of them fails nothing of what they make is left."""

import unittest
import unittest.mock

from trees import TreeTest
from releasing import steps
from releasing.steps import Command, Failure, Work


class Steps(TreeTest):
    def setUp(self):
        super().setUp()
        self.folder, self.file, self.link = (self.root / name for name in ("folder", "file", "link"))
        self.made = [self.folder, self.file, self.link, self.root / "never made"]

    def make_all(self):
        (self.folder / "inner").mkdir(parents=True)
        (self.folder / "inner/file").touch()
        self.file.touch()
        self.link.symlink_to(self.root / "elsewhere")

    def left(self):
        return sorted(path.name for path in self.root.iterdir())

    def run_quietly(self, *what):
        with unittest.mock.patch("builtins.print"):
            steps.run(what, self.made)

    def assert_fails(self, message, *what):
        with self.assertRaises(Failure) as caught:
            self.run_quietly(*what)
        self.assertEqual(str(caught.exception), message)

    def test_leave_what_they_made(self):
        self.run_quietly(Work("make all", self.make_all))
        self.assertEqual(self.left(), ["file", "folder", "link"])

    def test_leave_nothing_when_one_fails(self):
        (self.root / "elsewhere").mkdir()
        making = Work("make all", self.make_all)
        self.assert_fails("failed with exit status 3: sh -c 'exit 3'", making, Command("sh", "-c", "exit 3"))
        self.assertEqual(self.left(), ["elsewhere"])

    def test_leave_nothing_when_they_are_interrupted(self):
        def interrupt():
            raise KeyboardInterrupt

        with self.assertRaises(KeyboardInterrupt):
            self.run_quietly(Work("make all", self.make_all), Work("wait", interrupt))
        self.assertEqual(self.left(), [])

    def test_that_a_file_stops_say_so_in_a_line(self):
        path = self.root / "missing/file"
        failure = f"failed to write it: [Errno 2] No such file or directory: '{path}'"
        self.assert_fails(failure, Work("write it", lambda: path.write_text("", encoding="utf-8")))

    def test_that_report_themselves_are_not_reported_again(self):
        self.assert_fails("", Command("sh", "-c", "exit 1", reports=True))
        killed = Command("sh", "-c", "kill -9 $$", reports=True)
        self.assert_fails("failed with exit status -9: sh -c 'kill -9 $$'", killed)

    def test_whose_failures_are_judged_fail_by_that_judgement_only(self):
        outputs = []
        self.run_quietly(Command("sh", "-c", "echo no; exit 1", judge=outputs.append, judges_failures=True))
        self.assertEqual(outputs, ["no\n"])


if __name__ == "__main__":
    unittest.main()
