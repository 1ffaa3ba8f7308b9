"""The platform's names in a program for Macs, held against what the binding declares and who says so.

A name that is wrong compiles and links all the same, and where GNUstep knows nothing of it no test runs into
it. So the file itself is judged: each text in it that looks like a name has to be declared, each declared
name has to be in it, and who says that macOS has it is written down for what GNUstep cannot tell.
"""

import csv
import dataclasses
import pathlib
import re
import struct

from releasing.sealing import machofile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
SOURCES = REPOSITORY / "tests/gnustep/suites/PlatformSources.tsv"
# Of the vocabulary those that say how something is declared.
HOW_TO_DECLARE = {"Action.h", "Message.h", "Missing.h", "Runtime.h", "TypeEncoding.h", "Vocabulary.h"}

# Of words that end with colons, as in "setFrame:display:". Those without any look like other texts.
SELECTOR = re.compile(r"[a-z]\w{2,}:(?:\w+:)*")
# With the letters of its framework in front. Of other texts the selectors URL and UTF8String look like that.
PREFIXED = re.compile(r"_?k?[A-Z]{2}\w+")
# Of SF Symbols.
SYMBOL = re.compile(r"[a-z0-9]+(?:\.[a-z0-9]+)+")
# Of places in the system's own applications.
ADDRESS = re.compile(r"x-[a-z.-]+:\S+")
BLOCK = re.compile(r"[^ ]*@\?[^ ]*")

OWNER = re.compile(
    r'struct \w+ : (Class|Protocol)Reference \{(.*?)\n    \} \w+\{\*this, "(\w+)"\};', re.DOTALL
)
MESSAGE = re.compile(r'\b(ClassMessage|Message)<[^;]*?> \w+\{\s*\*this,\s*"([\w:]+)"([^;]*)\};', re.DOTALL)
IN_QUOTES = re.compile(r'"([\w:]+)"')
NOTIFICATION = re.compile(r'\bNotificationName \w+\{\s*"(\w+)"')
ACTION = re.compile(r'\bSelector(?: \w+\{|\()"([\w:]+)"')
FUNCTION = re.compile(r"\b(\w+)\(")
VARIABLE = re.compile(r"\bextern\b[^;{(]*\b(\w+);")

FRAMEWORKS = "/System/Library/Frameworks/"
LIBRARY, WEAK_LIBRARY, CHAINED_FIXUPS = 0xC, 0x80000018, 0x80000034
PLAIN_IMPORTS = 1  # four bytes each


@dataclasses.dataclass(frozen=True)
class Finding:
    where: str  # a half of the program, or the list that is wrong
    kind: str
    name: str
    what: str

    def __str__(self):
        return f"{self.where}: {self.kind} {self.name} {self.what}"


@dataclasses.dataclass(frozen=True)
class Declared:
    """The platform's names that a program may have in it."""

    classes: frozenset = frozenset()
    protocols: frozenset = frozenset()
    methods: frozenset = frozenset()  # as in -[NSObject init] and -[<NSMenuDelegate> menuWillOpen:]
    selectors: frozenset = frozenset()
    actions: frozenset = frozenset()  # that menus are told to send
    constants: frozenset = frozenset()
    signatures: frozenset = frozenset()  # of blocks
    imports: frozenset = frozenset()  # functions and variables of frameworks


def vocabulary_headers():
    headers = sorted((REPOSITORY / "mac/vocabulary").glob("*.h"))
    return [header for header in headers if header.name not in HOW_TO_DECLARE]


def _texts(folder, glob):
    return [file.read_text(encoding="utf-8") for file in sorted((REPOSITORY / folder).glob(glob))]


def _found(pattern, texts):
    return frozenset(found for text in texts for found in pattern.findall(text))


def methods_in(vocabulary):
    """The names of all that is declared for a class or a protocol in a header."""
    for kind, body, owner in OWNER.findall(vocabulary):
        name = owner if kind == "Class" else f"<{owner}>"
        for message, selector, rest in MESSAGE.findall(body):
            is_of_class = message == "ClassMessage" or "ofClass" in rest
            yield f"{'+' if is_of_class else '-'}[{name} {selector}]"


def declared(sources):
    """By the binding; notifications by the seam, and other constants, which stand wherever they are used, by
    the list of sources."""
    vocabulary = [header.read_text(encoding="utf-8") for header in vocabulary_headers()]
    owners = [owner for text in vocabulary for owner in OWNER.findall(text)]
    classes = frozenset(name for kind, _, name in owners if kind == "Class")
    protocols = frozenset(name for kind, _, name in owners if kind == "Protocol")
    headers = _texts("mac/c", "*.h")
    return Declared(
        classes=classes,
        protocols=protocols,
        methods=frozenset(method for text in vocabulary for method in methods_in(text)),
        selectors=_found(IN_QUOTES, vocabulary) - classes - protocols,
        actions=_found(ACTION, _texts("Kestrune", "*.cpp")),
        constants=_found(NOTIFICATION, _texts("platform", "*.h"))
        | {source.name for source in sources if source.kind == "constant"},
        signatures=_found(re.compile(rf'"({BLOCK.pattern})"'), _texts("mac/objc", "Block.cpp")),
        imports=_found(FUNCTION, headers) | _found(VARIABLE, headers + _texts("mac", "*.cpp")),
    )


@dataclasses.dataclass(frozen=True)
class Source:
    """Who says that macOS has what no GNUstep, or not every release of it, has."""

    kind: str
    name: str
    header: str
    system: str
    known: str
    page: str
    gnustep: str


def read_sources(path=SOURCES):
    lines = [line for line in path.read_text(encoding="utf-8").splitlines() if not line.startswith("#")]
    return [Source(*row) for row in csv.reader(lines, delimiter="\t", quoting=csv.QUOTE_NONE)]


def texts_in(half):
    return {text.decode("utf-8", "replace") for text in half.section(b"__TEXT", b"__cstring").split(b"\0")}


def _text_at(data, place):
    return bytes(data[place : data.index(b"\0", place)]).decode()


def imports_of(half):
    """The library and the name of each."""
    libraries = [
        _text_at(half.data, place + struct.unpack_from("<I", half.data, place + 8)[0])
        for kind, place in half.commands
        if kind in (LIBRARY, WEAK_LIBRARY)
    ]
    for kind, place in half.commands:
        if kind == CHAINED_FIXUPS:
            start = struct.unpack_from("<I", half.data, place + 8)[0]
            table, names, count, form = struct.unpack_from("<4I", half.data, start + 8)
            if form != PLAIN_IMPORTS:
                raise machofile.Failure(f"has imports of an unknown form, {form} ({half.processor})")
            for index in range(count):
                number = struct.unpack_from("<I", half.data, start + table + 4 * index)[0]
                library = number & 0xFF
                if 0 < library <= len(libraries):
                    yield libraries[library - 1], _text_at(half.data, start + names + (number >> 9))


def judge(half, names):
    """Findings in one half of a program."""
    texts = texts_in(half)

    def undeclared(kind, pattern, *allowed):
        for text in sorted(texts.difference(*allowed)):
            if pattern.fullmatch(text):
                yield Finding(half.processor, kind, text, "is declared nowhere")

    def missing(kind, wanted):
        for text in sorted(wanted - texts):
            yield Finding(half.processor, kind, text, "is declared, and not in the program")

    yield from undeclared("selector", SELECTOR, names.selectors, names.actions)
    yield from undeclared("name", PREFIXED, names.classes, names.protocols, names.constants, names.selectors)
    yield from undeclared("symbol", SYMBOL, names.constants)
    yield from undeclared("address", ADDRESS, names.constants)
    yield from undeclared("block", BLOCK, names.signatures)
    for library, name in imports_of(half):
        if library.startswith(FRAMEWORKS) and name.removeprefix("_") not in names.imports:
            yield Finding(half.processor, "import", name, f"of {library} is declared nowhere")
    yield from missing("class", names.classes)
    yield from missing("protocol", names.protocols)
    yield from missing("selector", names.selectors)
    yield from missing("action", names.actions)
    yield from missing("constant", names.constants)
    yield from missing("block", names.signatures)


def judge_sources(sources, names):
    """Findings in the list: what is declared nowhere, and what it has to have. GNUstep tells the rest."""
    of_kind = {
        kind: {source.name for source in sources if source.kind == kind}
        for kind in ("class", "protocol", "method")
    }
    for kind, allowed in (("class", names.classes), ("protocol", names.protocols), ("method", names.methods)):
        for name in sorted(of_kind[kind] - allowed):
            yield Finding(SOURCES.name, kind, name, "is declared nowhere")
    for protocol in sorted(names.protocols - of_kind["protocol"]):
        yield Finding(SOURCES.name, "protocol", protocol, "has no source")
    unknown = of_kind["class"] | {f"<{protocol}>" for protocol in of_kind["protocol"]}
    for method in sorted(names.methods - of_kind["method"]):
        if method[2:].split()[0] in unknown:
            yield Finding(SOURCES.name, "method", method, "has no source")


def halves_of(path):
    """Raises machofile.Failure or OSError for what cannot be read."""
    data = path.read_bytes()
    if not machofile.is_mach_o(data):
        raise machofile.Failure("is no Mach-O file")
    return machofile.halves_of(data)


def judge_program(path):
    """All findings, the list's before those of each half. Raises machofile.Failure or OSError."""
    try:
        sources = read_sources()
        names = declared(sources)
        halves = [finding for half in halves_of(path) for finding in judge(half, names)]
        return [*judge_sources(sources, names), *halves]
    except (struct.error, ValueError):
        raise machofile.Failure("is damaged") from None
