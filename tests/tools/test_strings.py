"""Texts that a string table lacks, and tables that do not match the English one, are found."""

import unittest

from trees import TreeTest
from checks import strings

EN = "Kestrune/Resources/en.lproj/Localizable.strings"
DE = "Kestrune/Resources/de.lproj/Localizable.strings"
ENGLISH = r"""/* A
   comment */
"Quit" = "Quit"; // at the end
"Pin to %@" = "Pin to %@";
"A \"b\" 5%%" = "A \"b\" 5%%";
"""
MENU = "Kestrune/Menu.cpp"


class Strings(TreeTest):
    def test_pass_tables_with_the_same_keys(self):
        german = '"A \\"b\\" 5%%" = "A";\n"Pin to %@" = "An %1$@ heften"; "Quit" = "Beenden";\n'
        result = self.run_check(strings, {EN: ENGLISH, DE: german})
        self.assertEqual((result.findings, result.examined), ([], "2 tables, 0 calls"))

    def test_say_that_there_are_none(self):
        result = self.run_check(strings, {"docs/Localizable.strings": "?"})
        self.assertEqual((result.findings, result.examined), ([], "0 tables, 0 calls"))

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
        self.assert_found(strings, {EN: ENGLISH + '"Quit" = "Quit";\n'}, f'{EN}:6: "Quit" is there twice')

    def test_find_a_broken_file(self):
        self.assert_found(strings, {EN: '"Quit" = "Quit";\n"Open" = Open;\n'}, f"{EN}:2: not of the form")

    def test_find_an_english_text_that_is_not_its_key(self):
        english = '"Quit" = "Exit";\n"Settings…" = "Settings...";\n"Tab\\t" = "Tab\\U0009";\n'
        self.assert_found(
            strings,
            {EN: english},
            f'{EN}:1: "Quit" is not its own English text',
            f'{EN}:2: "Settings…" is not its own English text',
        )

    def test_find_a_key_with_characters_in_pieces(self):
        self.assert_found(strings, {EN: '"Cafe\u0301" = "Cafe\u0301";\n'}, f"{EN}:1: ")

    def test_pass_texts_that_are_in_the_table(self):
        code = """
            title = localized("Quit") + Bundle::mainBundle().localizedString( "Pin "
                "to %@" );
            text = localized("A \\"b\\" 5%%", name);
            // localized("In a comment")
            other = delocalized("Elsewhere") + localized(key) + localizedName("No call of ours");
        """
        result = self.run_check(strings, {EN: ENGLISH, MENU: code, "sim/Bundle.cpp": 'localized("Not ours")'})
        self.assertEqual((result.findings, result.examined), ([], "1 tables, 3 calls"))

    def test_take_what_views_show_for_texts_too(self):
        code = """
            Text("Quit"); Button("Quit", quit); Label("Quit", "power"); Toggle("Quit", on, set);
            Text(key); VerbatimText("2 of 2");
        """
        result = self.run_check(strings, {EN: ENGLISH, MENU: code})
        self.assertEqual((result.findings, result.examined), ([], "1 tables, 4 calls"))
        self.assert_found(strings, {EN: ENGLISH, MENU: 'ui::Text("Hello");'}, f'{MENU}:1: "Hello"')

    def test_read_texts_as_the_compiler_does(self):
        english = '"Settings…" = "Settings…";\n"Line\\nend" = "Line\\nend";\n'
        code = r"""
            localized("Settings\u2026"); localized("Settings\xE2\x80" "\246"); localized("Line\nend");
            localized("Settings\U00002026");
        """
        self.assert_clean(strings, {EN: english, MENU: code})

    def test_find_texts_that_the_table_lacks(self):
        self.assert_found(
            strings,
            {EN: ENGLISH, MENU: '\nlocalized("Quit…");\nx.localizedString("Qu"\n"it it");\n'},
            f'{MENU}:2: "Quit…" is not in the English table',
            f'{MENU}:3: "Quit it" is not in the English table',
        )

    def test_find_texts_without_any_table(self):
        self.assert_found(strings, {MENU: 'localized("Quit");\n'}, f'{MENU}:1: "Quit" is not in')

    def test_find_keys_that_cannot_be_looked_up(self):
        code = 'localized("Quit" + name);\nlocalized(R"(Quit)");\nlocalized("Quit"s);\n'
        message = "the key is not one plain literal"
        self.assert_found(strings, {EN: ENGLISH, MENU: code}, *[f"{MENU}:{n}: {message}" for n in (1, 2, 3)])

    def test_find_that_the_english_table_is_missing(self):
        self.assert_found(strings, {DE: ENGLISH}, "Kestrune/Resources:1: has no en.lproj")


if __name__ == "__main__":
    unittest.main()
