"""The places of a source file where one mistake can be made, found in its syntax tree, and the mistakes."""

import dataclasses
import pathlib
import subprocess

from clang.cindex import CursorKind, Index, TranslationUnit

# The signs between two operands, and what may stand there instead.
OPERATORS = {
    "comparison": "< <= >=, <= < >, > >= <=, >= > <, == !=, != ==",
    "arithmetic": "+ -, - +, * /, / *, % *, += -=, -= +=, *= /=, /= *=",
    "logic": "&& ||, || &&, & |, | &",
}
OTHERWISE = {
    sign: (rule, others)
    for rule, signs in OPERATORS.items()
    for sign, *others in (each.split() for each in signs.split(","))
}
LONGEST = 60  # characters of a text in a report
BINARY = (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR)
PREFIXES = {
    "!": ("logic", ""),
    "-": ("arithmetic", ""),
    "++": ("arithmetic", "--"),
    "--": ("arithmetic", "++"),
}
JUMPS = (CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT)


@dataclasses.dataclass(frozen=True, order=True)
class Mutant:
    """One text of a file, between two offsets in bytes, and what stands there instead."""

    file: str
    start: int
    end: int
    after: str
    before: str
    line: int
    rule: str

    def apply(self, source):
        return source[: self.start] + self.after.encode() + source[self.end :]

    @property
    def change(self):
        return f"{_in_a_line(self.before)} -> {_in_a_line(self.after)}"

    def __str__(self):
        return f"{self.file}:{self.line}: {self.rule}: {self.change}"


def _in_a_line(text):
    line = " ".join(text.split())
    return f"{line[:LONGEST]}..." if len(line) > LONGEST else line or "nothing"


def mutants_of(root, file, command):
    """Those of a file, which is relative to `root`; `command` compiles it, or a file that includes it."""
    unit = Index.create().parse(
        str(root / file), [*_flags(command), "-x", "c++"], options=TranslationUnit.PARSE_NONE
    )
    errors = [text.spelling for text in unit.diagnostics if text.severity >= text.Error]
    if errors:
        raise SystemExit(f"{file} cannot be read: {errors[0]}")
    return sorted(set(_Finder(file, (root / file).read_bytes()).find(unit)))


def _flags(command):
    # The compiler's own folder of headers has those of its Objective-C runtime.
    compiler = next(before for before, word in zip(command, command[1:]) if word.startswith("-"))
    asking = [compiler, "-print-file-name=include"]
    headers = subprocess.run(asking, capture_output=True, text=True, check=True).stdout.strip()
    return [each for each in command if each.startswith(("-I", "-D", "-std"))] + ["-idirafter", headers]


class _Finder:
    def __init__(self, file, source):
        self.file = file
        self.source = source
        self.is_header = pathlib.PurePath(file).suffix == ".h"

    def find(self, unit):
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == unit.spelling:
                yield from self.below(cursor)

    def below(self, cursor):
        # The members of a header are a vocabulary, whose texts are held against the runtime once for all.
        if cursor.kind == CursorKind.STATIC_ASSERT or (
            self.is_header and cursor.kind == CursorKind.FIELD_DECL
        ):
            return
        yield from self.at(cursor)
        for child in cursor.get_children():
            yield from self.below(child)

    def at(self, cursor):
        kind, children = cursor.kind, list(cursor.get_children())
        if kind in BINARY and len(children) == 2:
            yield from self.operator(*children)
        elif kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            arguments = list(cursor.get_arguments())
            if len(arguments) == 2:
                yield from self.operator(*arguments)
        elif kind == CursorKind.UNARY_OPERATOR:
            yield from self.prefix(cursor)
        elif kind == CursorKind.COMPOUND_STMT:
            yield from self.statements(children)
        elif kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT):
            yield from self.condition(children)
        elif kind == CursorKind.CONDITIONAL_OPERATOR:
            yield from self.swap(*children[-2:])
        else:
            yield from self.constant(cursor)

    def operator(self, left, right):
        start, end = left.extent.end.offset, right.extent.start.offset
        between = self.text(start, end)
        sign = between.strip()
        if sign in OTHERWISE:
            rule, others = OTHERWISE[sign]
            start += len(between) - len(between.lstrip())
            for other in others:
                yield self.mutant(start, start + len(sign), other, rule)

    def prefix(self, cursor):
        start = cursor.extent.start.offset
        sign = self.text(start, start + 2)
        sign = sign if sign in PREFIXES or sign == "!=" else sign[:1]
        if sign in PREFIXES:
            rule, other = PREFIXES[sign]
            yield self.mutant(start, start + len(sign), other, rule)

    def statements(self, children):
        for child in children:
            start, end = self.extent(child)
            is_bare_return = child.kind == CursorKind.RETURN_STMT and self.text(start, end) == "return"
            if child.kind.is_expression() or child.kind in JUMPS or is_bare_return:
                yield self.mutant(start, end, "", "statement removed")

    # Where a condition declares something, something else comes first.
    def condition(self, children):
        if not children[0].kind.is_expression():
            return
        for truth in ("true", "false"):
            yield self.mutant(*self.extent(children[0]), truth, "condition")
        if len(children) == 3 and children[2].kind == CursorKind.COMPOUND_STMT:
            yield from self.swap(*children[1:])

    def swap(self, first, second):
        (start, first_end), (second_start, end) = self.extent(first), self.extent(second)
        between = self.text(first_end, second_start)
        swapped = self.text(second_start, end) + between + self.text(start, first_end)
        yield self.mutant(start, end, swapped, "branches swapped")

    def constant(self, cursor):
        start, end = self.extent(cursor)
        text = self.text(start, end)
        others = ()
        if cursor.kind == CursorKind.INTEGER_LITERAL and text.isdigit():
            others = (str(int(text) + 1),) if text == "0" else ("0", str(int(text) + 1))
        elif cursor.kind == CursorKind.FLOATING_LITERAL:
            others = (f"(1 + {text})",)
        elif cursor.kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            others = ("false",) if text == "true" else ("true",)
        elif cursor.kind == CursorKind.STRING_LITERAL and text.startswith('"'):
            others = ('""',) if text != '""' else ('"mutant"',)
        elif cursor.kind == CursorKind.DECL_REF_EXPR:
            others = self.neighbour(cursor, text)
        for other in others:
            yield self.mutant(start, end, other, "constant")

    # The next enumerator of an enumeration, after the last one the first.
    def neighbour(self, cursor, text):
        named = cursor.referenced
        if named is None or named.kind != CursorKind.ENUM_CONSTANT_DECL or not text.endswith(named.spelling):
            return ()
        names = [each.spelling for each in named.semantic_parent.get_children()]
        following = names[(names.index(named.spelling) + 1) % len(names)]
        return (text.removesuffix(named.spelling) + following,) if following != named.spelling else ()

    def extent(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def text(self, start, end):
        return self.source[start:end].decode()

    def mutant(self, start, end, after, rule):
        line = self.source.count(b"\n", 0, start) + 1
        return Mutant(self.file, start, end, after, self.text(start, end), line, rule)
