"""Width, length and white space of text files."""

import unittest

from trees import TreeTest
from checks import style


class Style(TreeTest):
    def test_passes_a_tidy_file(self):
        widest = "// ä" + "x" * 106 + "\n"
        self.assert_clean(style, {"base/A.h": widest, "Makefile": "a:\n\tb\n", "tests/empty.txt": ""})

    def test_finds_a_wide_line(self):
        wide = "a\n" + "x" * 111 + "\n"
        self.assert_found(style, {"base/A.h": wide}, "base/A.h:2: the line has 111 columns")

    def test_finds_a_wide_line_for_the_assembler_and_for_node(self):
        for path in ("tests/A.S", "tools/a.js"):
            self.assert_found(style, {path: "x" * 111 + "\n"}, f"{path}:1: the line has 111 columns")
            (self.root / path).unlink()

    def test_lets_tables_links_and_data_be_wide(self):
        wide = "x " * 60 + "x"
        self.assert_clean(
            style,
            {
                "docs/A.md": f"| {wide} |\n[a](https://example.org) {wide}\n![{wide}](a.png)\n",
                "a.json": f"{wide}\n",
                "CMakeLists.txt": f'call(\n    TO "{wide}")\n',
            },
        )
        self.assert_found(style, {"a.cmake": f'call("{wide}")\n'}, "a.cmake:1: the line has")
        (self.root / "a.cmake").unlink()
        self.assert_found(style, {"docs/B.md": f"{wide}\n"}, "docs/B.md:1: the line has 121 columns")

    def test_finds_a_tab(self):
        self.assert_found(style, {"base/A.h": "\tint a;\n"}, "base/A.h:1: the line holds a tab")

    def test_finds_white_space_at_the_end(self):
        self.assert_found(
            style,
            {"base/A.h": "int a; \nint b;\r\n"},
            "base/A.h:1: the line ends in white space",
            "base/A.h:2: the line ends in white space",
        )

    def test_finds_a_missing_last_newline_and_empty_last_lines(self):
        self.assert_found(
            style,
            {"base/A.h": "int a;\nint b;", "base/B.h": "int a;\n\n"},
            "base/A.h:2: the last line does not end",
            "base/B.h:2: the file ends in empty lines",
        )

    def test_finds_a_long_file(self):
        self.assert_clean(style, {"base/A.cpp": "a\n" * 400, "docs/A.md": "a\n" * 500})
        self.assert_found(style, {"base/A.cpp": "a\n" * 401}, "base/A.cpp:401: the file has 401 lines")

    def test_finds_a_full_folder(self):
        files = {f"sim/{index}.dat": "" for index in range(50)}
        self.assert_clean(style, {**files, "sim/session/A.dat": "", "build/A.dat": ""})
        self.assert_found(style, {"sim/50.dat": ""}, "sim:1: the folder has 51 files")

    def test_finds_a_full_root(self):
        files = {f"{index}.dat": "" for index in range(51)}
        self.assert_found(style, files, ".:1: the folder has 51 files")


if __name__ == "__main__":
    unittest.main()
