"""A file that no build compiles, a header that nothing includes and a test that nothing runs are found."""

import unittest

from trees import TreeTest
from checks import unbuilt


class Unbuilt(TreeTest):
    def test_passes_when_each_file_is_in_some_build(self):
        gcc = self.configure("gcc", ["base/A.cpp"])
        fuzz = self.configure("fuzz", ["tests/fuzz/B.cpp"])
        files = {"base/A.cpp": '#include "base/A.h"\n', "base/A.h": "", "tests/fuzz/B.cpp": ""}
        self.assert_clean(unbuilt, files, builds=[gcc, fuzz])

    def test_follows_the_links_of_the_include_roots(self):
        link = self.root / "build/gcc/roots/base/base"
        link.parent.mkdir(parents=True)
        self.write({"base/A.cpp": ""})
        link.symlink_to(self.root / "base")
        gcc = self.configure("gcc", ["base/A.cpp"], root=link.parent)
        self.assert_clean(unbuilt, {}, builds=[gcc])

    def test_finds_a_source_file_outside_every_build(self):
        gcc = self.configure("gcc", ["base/A.cpp"])
        self.assert_found(
            unbuilt,
            {"base/A.cpp": "", "base/B.cpp": "", "tests/base/BTest.cpp": ""},
            "base/B.cpp:1: no build compiles it",
            "tests/base/BTest.cpp:1: no build compiles it",
            builds=[gcc],
        )

    def test_finds_a_header_that_nothing_includes(self):
        gcc = self.configure("gcc", ["base/A.cpp"])
        files = {"base/A.cpp": '// #include "base/B.h"\n', "base/B.h": '#include "base/B.h"\n'}
        self.assert_found(unbuilt, files, "base/B.h:1: nothing includes it", builds=[gcc])

    def test_finds_a_python_test_that_no_list_names(self):
        gcc = self.configure("gcc", [])
        files = {
            "tests/tools/CMakeLists.txt": "test_one test_three_more",
            "tests/tools/test_one.py": "",
            "tests/tools/test_three.py": "",
            "tests/lone/test_two.py": "",
        }
        self.assert_found(
            unbuilt,
            files,
            "tests/lone/test_two.py:1: no CMakeLists.txt beside it names it",
            "tests/tools/test_three.py:1: no CMakeLists.txt beside it names it",
            builds=[gcc],
        )

    def test_does_not_pass_without_a_build(self):
        self.assert_found(unbuilt, {}, ".:1: no build to compare with")

    def test_does_not_pass_with_a_build_that_is_not_configured(self):
        self.assert_found(unbuilt, {}, "build/gcc:1: is not configured", builds=[self.root / "build/gcc"])


if __name__ == "__main__":
    unittest.main()
