"""clang-tidy finds what it should, and a configuration that is not in force is noticed."""

import pathlib
import shutil
import unittest
from unittest import mock

from trees import REPOSITORY, TreeTest
from checks import tidy

HAS_CLANG_TIDY = shutil.which("clang-tidy-14") or shutil.which("clang-tidy")
GOOD = '#include "base/A.h"\nint twice(int value) { return 2 * value; }\n'
HEADER = "#pragma once\nint twice(int value);\n"


@unittest.skipUnless(HAS_CLANG_TIDY, "clang-tidy is not installed")
class Tidy(TreeTest):
    def setUp(self):
        super().setUp()
        for path in (".clang-tidy", "tests/.clang-tidy"):
            self.write({path: (REPOSITORY / path).read_text(encoding="utf-8")})

    def test_passes_a_clean_tree(self):
        build = self.configure("clang", ["base/A.cpp"])
        result = self.run_check(tidy, {"base/A.h": HEADER, "base/A.cpp": GOOD}, [build])
        self.assertEqual((result.findings, result.examined), ([], "1 files"))

    def test_finds_a_mistake_in_a_source_file(self):
        build = self.configure("clang", ["base/A.cpp"])
        bad = GOOD + "bool same(int value) { return value == value; }\n"
        files = {"base/A.h": HEADER, "base/A.cpp": bad}
        self.assert_found(tidy, files, "base/A.cpp:3: both sides of operator", builds=[build])

    def test_finds_a_mistake_in_a_header_once(self):
        build = self.configure("clang", ["base/A.cpp", "base/B.cpp"])
        header = HEADER + "struct bad_name {};\n"
        files = {"base/A.h": header, "base/A.cpp": GOOD, "base/B.cpp": '#include "base/A.h"\n'}
        self.assert_found(tidy, files, "base/A.h:3: invalid case style for struct 'bad_name'", builds=[build])

    def test_finds_a_mistake_in_a_header_that_is_seen_through_an_include_root(self):
        build = self.configure("clang", ["base/A.cpp"])
        link = build / "roots/base/base"
        link.parent.mkdir(parents=True)
        self.write({"base/A.h": HEADER + "struct bad_name {};\n", "base/A.cpp": GOOD})
        link.symlink_to(self.root / "base")
        database = build / "compile_commands.json"
        text = database.read_text(encoding="utf-8").replace(f"-I{self.root}", f"-I{link.parent}")
        database.write_text(text, encoding="utf-8")
        self.assert_found(tidy, {}, "base/A.h:3: invalid case style for struct 'bad_name'", builds=[build])

    def test_follows_what_happens_in_each_of_several_files(self):
        build = self.configure("clang", ["base/A.cpp", "base/B.cpp"])
        bad = "int value(const int* number) {\n    number = nullptr;\n    return *number;\n}\n"
        files = {"base/A.h": HEADER, "base/A.cpp": GOOD, "base/B.cpp": bad}
        self.assert_found(tidy, files, "base/B.cpp:3: Dereference of null pointer", builds=[build])

    def test_finds_a_mistake_in_one_of_several_tests(self):
        build = self.configure("clang", ["tests/base/ATest.cpp", "tests/base/BTest.cpp"])
        good = "int same(int value) { return value; }\n"
        bad = "bool isItself(int value) { return value == value; }\n"
        files = {"tests/base/ATest.cpp": good, "tests/base/BTest.cpp": bad}
        self.assert_found(tidy, files, "tests/base/BTest.cpp:1: both sides of operator", builds=[build])

    def test_does_not_mind_that_two_files_have_names_in_common(self):
        build = self.configure("clang", ["tests/base/ATest.cpp", "tests/base/BTest.cpp"])
        text = "namespace {\nconstexpr int Width = 5;\n} // namespace\nint %s() { return Width; }\n"
        files = {"tests/base/ATest.cpp": text % "widthOfA", "tests/base/BTest.cpp": text % "widthOfB"}
        result = self.run_check(tidy, files, [build])
        self.assertEqual((result.findings, result.examined), ([], "2 files"))

    def test_looks_at_programs_of_a_folder_beside_each_other(self):
        programs = ["tests/base/a.cpp", "tests/base/b.cpp"]
        build = self.configure("clang", [*programs, "tests/base/C.cpp"])
        looked_at, look = [], tidy._clang_tidy
        with mock.patch.object(tidy, "_clang_tidy", lambda words: looked_at.append(words[-1]) or look(words)):
            files = dict.fromkeys(programs, "int main() {}\n")
            files["tests/base/C.cpp"] = "int one() { return 1; }\n"
            result = self.run_check(tidy, files, [build])
        self.assertEqual((result.findings, result.examined), ([], "3 files"))
        names = [pathlib.Path(path).name for path in looked_at if "joined" in path or "base" in path]
        self.assertEqual(sorted(names), ["joined0.cpp", "joined1.cpp"])

    def test_reports_a_file_that_does_not_compile(self):
        build = self.configure("clang", ["base/A.cpp"])
        files = {"base/A.cpp": '#include "base/B.h"\n'}
        self.assert_found(tidy, files, "base/A.cpp:1: 'base/B.h' file not found", builds=[build])

    def test_notices_a_stray_character_in_a_configuration(self):
        build = self.configure("clang", ["base/A.cpp"])
        files = {"base/A.h": HEADER, "base/A.cpp": GOOD}
        for path in (".clang-tidy", "tests/.clang-tidy"):
            with self.subTest(path=path):
                text = (self.root / path).read_text(encoding="utf-8")
                found = self.findings(tidy, files | {path: "}\n" + text}, [build])
                self.assertIn(f"{path}:1: is not in force", "\n".join(found))
                self.write({path: text})

    def test_notices_a_configuration_without_our_checks(self):
        build = self.configure("clang", ["base/A.cpp"])
        files = {"base/A.h": HEADER, "base/A.cpp": GOOD, ".clang-tidy": "Checks: '-*,bugprone-*'\n"}
        found = "\n".join(self.findings(tidy, files, [build]))
        self.assertIn(".clang-tidy:1: is not in force", found)
        self.assertIn("misc-redundant-expression, readability-identifier-naming", found)

    def test_does_not_pass_without_a_configuration_or_without_a_build(self):
        (self.root / ".clang-tidy").unlink()
        self.assert_found(tidy, {}, ".:1: no compiled file", ".clang-tidy:1: is missing")


if __name__ == "__main__":
    unittest.main()
