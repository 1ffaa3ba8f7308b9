"""String tables that do not match the English one are found."""

import unittest

from trees import TreeTest
from checks import strings

EN = "Kestrune/Resources/en.lproj/Localizable.strings"
DE = "Kestrune/Resources/de.lproj/Localizable.strings"
ENGLISH = r"""/* A
   comment */
"Quit" = "Quit"; // at the end
"Pin to %@" = "Pin to %@";
"A \"b\" 5%%" = "A";
"""


class Strings(TreeTest):
    def test_pass_tables_with_the_same_keys(self):
        german = '"A \\"b\\" 5%%" = "A";\n"Pin to %@" = "An %1$@ heften"; "Quit" = "Beenden";\n'
        result = self.run_check(strings, {EN: ENGLISH, DE: german})
        self.assertEqual((result.findings, result.examined), ([], "2 tables"))

    def test_say_that_there_are_none(self):
        result = self.run_check(strings, {"docs/Localizable.strings": "?"})
        self.assertEqual((result.findings, result.examined), ([], "0 tables"))

    def test_find_missing_and_additional_keys(self):
        german = '"Quit" = "Beenden";\n"A \\"b\\" 5%%" = "A";\n"More" = "Mehr";\n'
        self.assert_found(
            strings,
            {EN: ENGLISH, DE: german},
            f'{DE}:1: "Pin to %@" is missing',
            f'{DE}:3: "More" is not in the English table',
        )

    def test_find_other_format_specifiers(self):
        german = '"A \\"b\\" 5%%" = "A";\n"Quit" = "Beenden";\n"Pin to %@" = "An %d heften";\n'
        message = f'{DE}:3: "Pin to %@" has other format specifiers'
        self.assert_found(strings, {EN: ENGLISH, DE: german}, message)

    def test_find_a_key_that_is_there_twice(self):
        self.assert_found(strings, {EN: ENGLISH + '"Quit" = "Exit";\n'}, f'{EN}:6: "Quit" is there twice')

    def test_find_a_broken_file(self):
        self.assert_found(strings, {EN: '"Quit" = "Quit";\n"Open" = Open;\n'}, f"{EN}:2: not of the form")

    def test_find_that_the_english_table_is_missing(self):
        self.assert_found(strings, {DE: ENGLISH}, "Kestrune/Resources:1: has no en.lproj")


if __name__ == "__main__":
    unittest.main()
