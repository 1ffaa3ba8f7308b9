"""As much of the C++ language as the checks need: comments, literals and include directives."""

import re

TOKEN = re.compile(
    r"""
    (?P<comment> //(?:\\\n|[^\n])* | /\*.*?\*/ )
  | (?P<raw> \b(?:u8|[uUL])?R"(?P<delimiter>[^()\\\s]{0,16})\(.*?\)(?P=delimiter)" )
  | (?P<number> \b\d(?:'?[\w.])* )
  | (?P<literal> "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])*' )
    """,
    re.VERBOSE | re.DOTALL,
)
INCLUDE = re.compile(r"^[ \t]*#[ \t]*include[ \t]*(?:<([^>\n]+)>|\"([^\"\n]+)\")", re.MULTILINE)


def without_comments(text):
    return _replace(text, {"comment"})


def without_comments_and_literals(text):
    return _replace(text, {"comment", "raw", "literal"})


def includes(text):
    """(line, name, quoted) for each include directive outside comments."""
    text = without_comments(text)
    return [
        (text.count("\n", 0, match.start()) + 1, match[1] or match[2], match[2] is not None)
        for match in INCLUDE.finditer(text)
    ]


def _replace(text, kinds):
    """Blanks the given kinds of token; every other character keeps its line and column."""

    def blank(match):
        return re.sub(r"[^\n]", " ", match[0]) if match.lastgroup in kinds else match[0]

    return TOKEN.sub(blank, text)
