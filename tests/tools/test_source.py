"""Comments, literals and include directives are told apart as a compiler does."""

import unittest

import trees  # noqa: F401 (makes the checks importable)
from checks import source


class Comments(unittest.TestCase):
    def test_are_blanked_and_everything_else_keeps_its_place(self):
        self.assertEqual(source.without_comments("a // b\nc /* d\n e */ f\n"), "a     \nc     \n      f\n")

    def test_in_a_literal_are_text(self):
        text = 'auto url = "https://example.org"; // a page\n'
        self.assertEqual(source.without_comments(text).rstrip(), 'auto url = "https://example.org";')

    def test_continue_over_an_escaped_line_end(self):
        self.assertEqual(source.without_comments("// a \\\nb\nc").split(), ["c"])


class Literals(unittest.TestCase):
    def test_of_every_kind_are_blanked(self):
        text = "f(\"a \\\" b\", '\"', R\"(c \" // d)\", u8R\"x(e)\" )x\"); g();"
        code = source.without_comments_and_literals(text)
        self.assertEqual(code.split(), ["f(", ",", ",", ",", ");", "g();"])

    def test_do_not_start_at_the_separator_of_a_number(self):
        text = "a = 1'000'000; sleep('x');"
        self.assertEqual(source.without_comments_and_literals(text), "a = 1'000'000; sleep(   );")


class Includes(unittest.TestCase):
    def test_are_found_with_line_and_kind(self):
        text = '#pragma once\n#include <vector>\n#  include "base/Geometry.h"\n'
        self.assertEqual(source.includes(text), [(2, "vector", False), (3, "base/Geometry.h", True)])

    def test_in_comments_do_not_count(self):
        self.assertEqual(source.includes('// #include "a/B.h"\n/*\n#include <c>\n*/\n'), [])


if __name__ == "__main__":
    unittest.main()
