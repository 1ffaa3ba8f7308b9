"""The English table holds every text that the application asks for, and every language holds the same ones.

In the English table each key is its own text. In the others the format specifiers are those of the key.
"""

import re
import unicodedata

from . import source
from .result import Finding, Result

DEVELOPMENT_LANGUAGE = "en"
FOLDER = "Kestrune/"
TABLE = re.compile(r"^Kestrune/Resources/(?P<language>[\w-]+)\.lproj/Localizable\.strings$")
ENTRY = re.compile(
    r"""
    \s+ | //[^\n]* | /\*.*?\*/
  | "(?P<key>(?:\\.|[^"\\])*)" \s* = \s* "(?P<value>(?:\\.|[^"\\])*)" \s* ;
    """,
    re.VERBOSE | re.DOTALL,
)
SPECIFIER = re.compile(r"%(?:\d+\$)?[-+ #0]*\d*(?:\.\d+)?(?:hh|h|ll|l|q|z|t|j)?[@%dDuUxXoOfeEgGcCsSpaAF]")
# A text that the application shows: the first argument of a call or of a view, perhaps in adjacent pieces.
CALL = re.compile(
    r"""
    \b(?:localized|localizedString|Text|Button|Label|Toggle) \s* \( \s*
    (?P<argument> (?P<prefix>(?:u8|[uUL])?R?) (?P<pieces>"(?:\\.|[^"\\\n])*"(?:\s*"(?:\\.|[^"\\\n])*")*) )
    \s* (?P<next>[,)]?)
    """,
    re.VERBOSE,
)
PIECE = re.compile(r'"((?:\\.|[^"\\\n])*)"')
ESCAPE = re.compile(r"\\(?:x([0-9A-Fa-f]+)|u([0-9A-Fa-f]{4})|U([0-9A-Fa-f]{8})|([0-7]{1,3})|(.))", re.DOTALL)
TABLE_ESCAPE = re.compile(r"\\(?:U([0-9A-Fa-f]{4})|(.))", re.DOTALL)
CONTROLS = {"n": "\n", "t": "\t", "r": "\r", "a": "\a", "b": "\b", "f": "\f", "v": "\v"}


def run(tree):
    paths = {match["language"]: match[0] for match in map(TABLE.match, tree.files) if match}
    findings, tables = [], {}
    for language, path in paths.items():
        tables[language], problems = _parse(path, tree.text(path))
        findings += problems
    if paths and DEVELOPMENT_LANGUAGE not in tables:
        findings.append(
            Finding("Kestrune/Resources", 1, f"has no {DEVELOPMENT_LANGUAGE}.lproj to compare with; add it")
        )
    reference = tables.pop(DEVELOPMENT_LANGUAGE, None)
    for language, table in tables.items() if reference is not None else ():
        findings += _compare(paths[language], reference, table)
    if reference is not None:
        findings += _compare_with_itself(paths[DEVELOPMENT_LANGUAGE], reference)
    files = [path for path in tree.cpp_files if path.startswith(FOLDER)]
    calls = [(path, *call) for path in files for call in _calls(tree.text(path))]
    findings += _missing(calls, reference or {})
    return Result(f"{len(paths)} tables, {len(calls)} calls", findings)


def _parse(path, text):
    """The table as {key: (line, value)}, and what is wrong with the file."""
    table, findings, position = {}, [], 0
    while position < len(text):
        line = text.count("\n", 0, position) + 1
        match = ENTRY.match(text, position)
        if not match:
            findings.append(Finding(path, line, 'not of the form "key" = "value"; from here on; correct it'))
            break
        key = match["key"]
        if key is not None:
            if key in table:
                findings.append(Finding(path, line, f'"{key}" is there twice; remove one'))
            table[key] = (line, match["value"])
        position = match.end()
    return table, findings


def _compare(path, reference, table):
    for key in reference.keys() - table.keys():
        yield Finding(path, 1, f'"{key}" is missing; translate it')
    for key in table.keys() - reference.keys():
        yield Finding(path, table[key][0], f'"{key}" is not in the English table; remove it or add it there')
    for key in reference.keys() & table.keys():
        line, value = table[key]
        if _specifiers(value) != _specifiers(reference[key][1]):
            yield Finding(path, line, f'"{key}" has other format specifiers than in English; use the same')


def _compare_with_itself(path, table):
    """The keys are what the application falls back to, so the English texts may not drift away from them."""
    for key, (line, value) in table.items():
        text = _table_text(key)
        if text != _table_text(value):
            yield Finding(path, line, f'"{key}" is not its own English text; make both the same')
        if text != unicodedata.normalize("NFC", text):
            yield Finding(path, line, f'"{key}" holds characters in pieces; write them composed (NFC)')


def _missing(calls, table):
    known = {_table_text(key) for key in table}
    for path, line, text in calls:
        if text is None:
            message = "the key is not one plain literal; write it as one, so that it can be looked up"
            yield Finding(path, line, message)
        elif text not in known:
            yield Finding(path, line, f'"{text}" is not in the English table; add it')


def _calls(text):
    """(line, key) for each text that is asked for; the key is None when it can only be known at run time."""
    text = source.without_comments(text)
    for match in CALL.finditer(text):
        plain = not match["prefix"] and match["next"]
        line = text.count("\n", 0, match.start("argument")) + 1
        yield line, _literal_text(match["pieces"]) if plain else None


def _literal_text(pieces):
    """What a C++ compiler makes of the adjacent literals. Escapes of numbers below 256 are bytes of UTF-8."""

    def unescape(match):
        byte, short, long, octal, character = match.groups()
        if byte or octal:
            number = int(byte, 16) if byte else int(octal, 8)
            # A byte that is no character of its own, as "surrogateescape" writes it.
            return chr(number) if number < 0x80 else chr(0xDC00 + number)
        if short or long:
            return chr(int(short or long, 16))
        return CONTROLS.get(character, character)

    text = "".join(ESCAPE.sub(unescape, piece) for piece in PIECE.findall(pieces))
    return text.encode("utf-8", "surrogateescape").decode("utf-8", "replace")


def _table_text(escaped):
    return TABLE_ESCAPE.sub(
        lambda match: chr(int(match[1], 16)) if match[1] else CONTROLS.get(match[2], match[2]), escaped
    )


def _specifiers(value):
    specifiers = (re.sub(r"\d+\$", "", specifier) for specifier in SPECIFIER.findall(value))
    return sorted(specifier for specifier in specifiers if specifier != "%%")
