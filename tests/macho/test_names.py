"""The platform's names in the shipped program are declared, and each declared one is in either half."""

import dataclasses
import os
import pathlib
import re
import subprocess
import sys
import unittest

import names
from releasing.halves import PROGRAM
from releasing.sealing import machofile
from tiny_bundles import PROGRAMS
from trees import REPOSITORY, TreeTest

APPLICATION = pathlib.Path(os.environ["KESTRUNE_BUNDLE"])
TINY_PROGRAM = PROGRAMS / "names.macho"
APPKIT = "/System/Library/Frameworks/AppKit.framework/Versions/C/AppKit"

REGISTERED = re.compile(r"\b(?:sel_registerName|sel_getUid|NSSelectorFromString)\b")

# What the tiny program has.
DECLARED = names.Declared(
    classes=frozenset({"NSView"}),
    protocols=frozenset({"NSMenuDelegate"}),
    selectors=frozenset({"setFrame:display:", "UTF8String"}),
    actions=frozenset({"selectAll:"}),
    constants=frozenset({"NSScreenNumber", "circle.dashed"}),
    signatures=frozenset({"v16@?0@8"}),
    imports=frozenset({"NSApp", "NSBeep"}),
)

# A text of the tiny program, what takes its place, and what is found then.
FAULTS = {
    "a selector": ("setFrame:display:", "setFrame:disploy:", "selector", "selector"),
    "an action": ("selectAll:", "selectEll:", "selector", "action"),
    "a selector without arguments": ("UTF8String", "UTF8Strong", "name", "selector"),
    "a class": ("NSView", "NSVeiw", "name", "class"),
    "a protocol": ("NSMenuDelegate", "NSMenuDelegata", "name", "protocol"),
    "a constant": ("NSScreenNumber", "NSScreenNumbre", "name", "constant"),
    "a symbol": ("circle.dashed", "circle.dished", "symbol", "constant"),
    "a block": ("v16@?0@8", "v16@?0q8", "block", "block"),
}


def source(kind, name):
    return names.Source(kind, name, "NSView.h", "10.0", "documented", "none", "no")


class Sources(unittest.TestCase):
    def test_register_selectors_where_each_is_given_its_name_and_nowhere_else(self):
        """A message or a method that the platform calls, an action of our own, and that of a menu's item."""
        sources = [path for path in (REPOSITORY / "mac").rglob("*.*") if path.suffix in (".h", ".cpp")]
        found = {
            path.relative_to(REPOSITORY / "mac").as_posix()
            for path in sources
            if REGISTERED.search(path.read_text(encoding="utf-8"))
        }
        declaration = "sdk/usr/include/objc/objc.h"
        self.assertEqual(found, {declaration, "Menu.cpp", "vocabulary/Action.h", "vocabulary/Message.cpp"})

    def test_declare_messages_in_the_vocabulary_and_nowhere_else(self):
        declaration = re.compile(r"\b(?:Class)?Message<[^;{]*>\s+\w+\s*\{\s*\*?\w+,\s*\"")
        sources = [path for path in (REPOSITORY / "mac").rglob("*.*") if path.suffix in (".h", ".cpp")]
        found = {
            path.relative_to(REPOSITORY / "mac").parts[0]
            for path in sources
            if declaration.search(path.read_text(encoding="utf-8"))
        }
        self.assertEqual(found, {"vocabulary"})

    def test_declare_messages_in_a_form_that_is_understood(self):
        for header in names.vocabulary_headers():
            with self.subTest(header.name):
                text = header.read_text(encoding="utf-8")
                messages = re.findall(r"\b(?:Class)?Message<", text)
                self.assertEqual(len(list(names.methods_in(text))), len(messages))


class PlatformSources(unittest.TestCase):
    def judged(self, sources, declared):
        return [str(finding) for finding in names.judge_sources(sources, declared)]

    def test_have_nothing_to_say_of_what_GNUstep_tells(self):
        declared = names.Declared(
            classes=frozenset({"NSView"}), methods=frozenset({"-[NSView display]", "-[NSView window]"})
        )
        self.assertEqual(self.judged([source("method", "-[NSView window]")], declared), [])

    def test_have_to_be_there_for_protocols_and_for_all_methods_of_what_is_listed(self):
        declared = names.Declared(
            classes=frozenset({"SMAppService"}),
            protocols=frozenset({"NSMenuDelegate", "NSWindowDelegate"}),
            methods=frozenset(
                {"+[SMAppService status]", "-[SMAppService status]", "-[<NSMenuDelegate> menuWillOpen:]"}
            ),
        )
        listed = [
            source("class", "SMAppService"),
            source("protocol", "NSMenuDelegate"),
            source("method", "-[SMAppService status]"),
        ]
        self.assertEqual(
            self.judged(listed, declared),
            [
                "PlatformSources.tsv: protocol NSWindowDelegate has no source",
                "PlatformSources.tsv: method +[SMAppService status] has no source",
                "PlatformSources.tsv: method -[<NSMenuDelegate> menuWillOpen:] has no source",
            ],
        )

    def test_are_of_what_is_declared(self):
        listed = [
            source("class", "NSVeiw"),
            source("protocol", "NSMenuDelegata"),
            source("method", "-[NSView windo]"),
        ]
        self.assertEqual(
            self.judged(listed, names.Declared()),
            [
                "PlatformSources.tsv: class NSVeiw is declared nowhere",
                "PlatformSources.tsv: protocol NSMenuDelegata is declared nowhere",
                "PlatformSources.tsv: method -[NSView windo] is declared nowhere",
            ],
        )

    def test_say_everything(self):
        for row in names.read_sources():
            with self.subTest(row.name):
                self.assertIn(row.kind, ("class", "protocol", "method", "constant"))
                self.assertRegex(row.system, r"^(\d+\.\d+\??|not known|none)$")
                self.assertIn(row.known, ("documented", "believed"))
                self.assertRegex(row.page, r"^([a-z/-]+|none)$")
                self.assertRegex(row.gnustep, r"^(\d+|no)$")
                self.assertTrue(row.header)


class Judge(unittest.TestCase):
    def judged(self, content, declared=DECLARED):
        return [str(line) for half in machofile.halves_of(content) for line in names.judge(half, declared)]

    def test_finds_nothing_where_everything_is_declared(self):
        self.assertEqual(self.judged(TINY_PROGRAM.read_bytes()), [])

    def test_names_what_is_wrong_and_the_half_that_has_it(self):
        content = TINY_PROGRAM.read_bytes()
        for fault, (right, wrong, undeclared, missing) in FAULTS.items():
            with self.subTest(fault):
                place = content.rindex(f"{right}\0".encode())  # in the last half
                changed = content[:place] + wrong.encode() + content[place + len(right) :]
                expected = [
                    f"arm64: {undeclared} {wrong} is declared nowhere",
                    f"arm64: {missing} {right} is declared, and not in the program",
                ]
                self.assertEqual(self.judged(changed), expected)

    def test_names_an_import_that_is_not_declared(self):
        content = TINY_PROGRAM.read_bytes().replace(b"\0_NSBeep\0", b"\0_NSBeap\0")
        self.assertEqual(
            self.judged(content),
            [f"{half}: import _NSBeap of {APPKIT} is declared nowhere" for half in ("x86_64", "arm64")],
        )


class Command(TreeTest):
    def check(self, path):
        command = [sys.executable, REPOSITORY / "tests/macho/check-names", path]
        return subprocess.run(command, capture_output=True, encoding="utf-8")

    def test_prints_a_line_for_each_finding(self):
        result = self.check(TINY_PROGRAM)
        self.assertEqual((result.returncode, result.stderr), (1, ""))
        lines = result.stdout.splitlines()
        self.assertIn(f"x86_64: import _NSBeep of {APPKIT} is declared nowhere", lines)
        self.assertIn("arm64: class NSWorkspace is declared, and not in the program", lines)

    def test_says_what_cannot_be_read(self):
        self.write({"text": "no program, but long enough to be looked at\n"})
        (self.root / "half").write_bytes(TINY_PROGRAM.read_bytes()[:600])
        for path, reason in (
            (self.root / "nothing", "cannot be read: No such file or directory"),
            (self.root, "cannot be read: Is a directory"),
            (self.root / "text", "is no Mach-O file"),
            (self.root / "half", "is damaged"),
        ):
            with self.subTest(path.name):
                result = self.check(path)
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertEqual(result.stderr, f"check-names: {path} {reason}\n")


@unittest.skipUnless(APPLICATION.is_dir(), "make test has not built it")
class ShippedProgram(unittest.TestCase):
    def test_has_each_declared_name_and_no_other(self):
        self.assertEqual([str(finding) for finding in names.judge_program(APPLICATION / PROGRAM)], [])

    def test_has_names_of_each_kind(self):
        declared = names.declared(names.read_sources())
        self.assertGreater(len(declared.selectors), 150)
        for field in dataclasses.fields(declared):
            self.assertTrue(getattr(declared, field.name), field.name)
        for half in names.halves_of(APPLICATION / PROGRAM):
            found = {name for library, name in names.imports_of(half) if library.startswith(names.FRAMEWORKS)}
            self.assertLessEqual({"_NSApp", "_CGEventTapCreate", "_kCFBooleanTrue"}, found)


if __name__ == "__main__":
    unittest.main()
