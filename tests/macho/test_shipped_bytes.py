"""The same sources give the same bytes wherever and whenever they are built: nothing of either is shipped.

Whether two builds are equal would take two builds. This looks for what would make them differ.
"""

import os
import pathlib
import re
import subprocess
import unittest
import zipfile

from releasing import halves
from releasing.sealing import machofile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])
LLVM = REPOSITORY / "build/llvm/tools/bin"

# Of a file that was compiled or included, or of what it became.
SOURCE = re.compile(rb"[\w./+-]+\.cpp(?:\.o)?(?=\0)|/\w{3,}\.h(?=\0)")
# As the compiler writes the day and the time of a build, and as people do.
MONTH = rb"(?:Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec)"
TIME = re.compile(MONTH + rb" [ \d]\d 20\d\d|\d\d:\d\d:\d\d|20\d\d-\d\d-\d\d")
FIRST_TIME_OF_A_ZIP = (1980, 1, 1, 0, 0, 0)


def run(tool, *arguments):
    return subprocess.run([LLVM / tool, *arguments], capture_output=True, check=True).stdout


def paths_of_this_build():
    return [os.fsencode(path) for path in (REPOSITORY, APPLICATION.parent, "build/cross-", "CMakeFiles")]


@unittest.skipUnless(APPLICATION.is_dir(), "make test has not built it")
class ShippedBytes(unittest.TestCase):
    def setUp(self):
        program = (APPLICATION / halves.PROGRAM).read_bytes()
        self.halves = {half.processor: bytes(half.data) for half in machofile.halves_of(program)}
        self.assertEqual(sorted(self.halves), sorted(halves.PROCESSORS))

    def assert_free_of(self, places, name, data):
        for place in places:
            self.assertNotIn(place, data, name)

    def test_hold_no_path_of_the_sources_or_of_the_build(self):
        files = [path for path in APPLICATION.rglob("*") if path.is_file()]
        self.assertGreater(len(files), 5)
        for path in files:
            self.assert_free_of(paths_of_this_build(), path, path.read_bytes())
        for processor, half in self.halves.items():
            self.assertEqual(SOURCE.findall(half), [], processor)

    def test_hold_no_time(self):
        for processor, half in self.halves.items():
            self.assertEqual(TIME.findall(half), [], processor)

    def test_hold_no_notes_for_debuggers(self):
        """They would name each object file, with the time at which it was made."""
        for processor in self.halves:
            symbols = run("llvm-nm", "--debug-syms", f"--arch={processor}", APPLICATION / halves.PROGRAM)
            self.assertIn(b" T __mh_execute_header", symbols)
            self.assertNotIn(b" OSO ", symbols)

    def test_are_of_a_program_whose_notes_say_no_time(self):
        """Its UUID is a hash of all of it, also of what is not shipped."""
        for processor in self.halves:
            built = REPOSITORY / f"build/cross-{processor}/mac/Kestrune.app" / halves.PROGRAM
            notes = [line for line in run("llvm-nm", "--debug-syms", built).splitlines() if b" OSO " in line]
            self.assertGreater(len(notes), 50)
            for note in notes:
                self.assertEqual(int(note.split()[0], 16), 0, note)
                self.assert_free_of([os.fsencode(REPOSITORY)], processor, note)

    def test_are_packed_in_order_and_without_times(self):
        with zipfile.ZipFile(APPLICATION.with_suffix(".zip")) as packed:
            entries = packed.infolist()
            self.assertEqual(packed.comment, b"")
        names = [entry.filename.rstrip("/") for entry in entries]
        there = [APPLICATION, *APPLICATION.rglob("*")]
        self.assertEqual(sorted(names), sorted(str(path.relative_to(APPLICATION.parent)) for path in there))
        self.assertEqual(names, sorted(names, key=lambda name: name.split("/")))
        for entry in entries:
            self.assertEqual((entry.date_time, entry.extra, entry.comment), (FIRST_TIME_OF_A_ZIP, b"", b""))
            self.assertIn(entry.external_attr >> 16 & 0o777, (0o644, 0o755), entry.filename)


@unittest.skipUnless(APPLICATION.is_dir(), "make test has not built it")
class KeptSymbols(unittest.TestCase):
    def test_have_the_lines_of_every_file_of_the_application_in_both_halves(self):
        symbols = APPLICATION.with_suffix(".app.dSYM")
        for processor in halves.PROCESSORS:
            lines = run("llvm-dwarfdump", f"--arch={processor}", "--debug-info", symbols)
            units = set(re.findall(rb'DW_TAG_compile_unit.*?DW_AT_name\t\("(.*?)"\)', lines, re.DOTALL))
            for source in sorted((REPOSITORY / "Kestrune").glob("*.cpp")):
                path = f"Kestrune/{source.name}".encode()
                self.assertTrue(any(unit.endswith(path) for unit in units), f"{source.name}, {processor}")

    def test_hold_no_path_of_this_machine(self):
        symbols = APPLICATION.with_suffix(".app.dSYM")
        for path in symbols.rglob("*"):
            if path.is_file():
                self.assertNotIn(os.fsencode(REPOSITORY), path.read_bytes(), path)


if __name__ == "__main__":
    unittest.main()
