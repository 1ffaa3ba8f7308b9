"""Every language has the strings of the English table, with the same format specifiers."""

import re

from .result import Finding, Result

DEVELOPMENT_LANGUAGE = "en"
TABLE = re.compile(r"^Kestrune/Resources/(?P<language>[\w-]+)\.lproj/Localizable\.strings$")
ENTRY = re.compile(
    r"""
    \s+ | //[^\n]* | /\*.*?\*/
  | "(?P<key>(?:\\.|[^"\\])*)" \s* = \s* "(?P<value>(?:\\.|[^"\\])*)" \s* ;
    """,
    re.VERBOSE | re.DOTALL,
)
SPECIFIER = re.compile(r"%(?:\d+\$)?[-+ #0]*\d*(?:\.\d+)?(?:hh|h|ll|l|q|z|t|j)?[@%dDuUxXoOfeEgGcCsSpaAF]")


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
    return Result(f"{len(paths)} tables", findings)


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


def _specifiers(value):
    specifiers = (re.sub(r"\d+\$", "", specifier) for specifier in SPECIFIER.findall(value))
    return sorted(specifier for specifier in specifiers if specifier != "%%")
