"""Files that clang-format would change are found."""

import shutil
import unittest

from trees import REPOSITORY, TreeTest
from checks import format

HAS_CLANG_FORMAT = shutil.which("clang-format-14") or shutil.which("clang-format")


@unittest.skipUnless(HAS_CLANG_FORMAT, "clang-format is not installed")
class Format(TreeTest):
    def setUp(self):
        super().setUp()
        shutil.copy(REPOSITORY / ".clang-format", self.root)

    def test_passes_a_formatted_file(self):
        result = self.run_check(format, {"base/A.cpp": "int twice(int value) { return 2 * value; }\n"})
        self.assertEqual((result.findings, result.examined), ([], "1 files"))

    def test_finds_the_first_unformatted_line_of_each_file(self):
        self.assert_found(
            format,
            {"base/A.cpp": "int a;\nint  b;\nint  c;\n", "base/B.h": "int  a;\n"},
            "base/A.cpp:2: is not formatted from here on; run: clang-format -i base/A.cpp",
            "base/B.h:1: is not formatted from here on",
        )

    def test_does_not_pass_with_a_broken_configuration(self):
        self.assert_found(
            format, {".clang-format": "BasedOnStyle LLVM\n", "base/A.cpp": "int a;\n"}, ".clang-format:1: "
        )


if __name__ == "__main__":
    unittest.main()
