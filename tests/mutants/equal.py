"""The mutants that are known to be equal to the original, with the reason, and which of them a file has.

Each is written in a file of the folder equal/ as

    ui/Some.cpp
        the line that it begins in
        before -> after
    Why nobody can notice it.

with the change as reports show it. There may be several changes, each in a line. One that the line has more
than once is numbered from the second on: `0 -> 1 (2)`.
"""

import collections
import dataclasses
import pathlib

LISTS = pathlib.Path(__file__).resolve().parent / "equal"


@dataclasses.dataclass(frozen=True)
class Place:
    """What a mutant is called, wherever in its file it has moved to."""

    file: str
    line: str
    change: str


class Unreadable(Exception):
    pass


def read(folder=LISTS):
    """Each place that is listed, with the reason."""
    listed = {}
    for path in sorted(folder.glob("*.txt")):
        for block in path.read_text(encoding="utf-8").split("\n\n"):
            lines = [line for line in block.splitlines() if not line.startswith("#")]
            if lines:
                listed |= _entry(path, lines)
    return listed


def _entry(path, lines):
    file, *rest = lines
    indented = [line.strip() for line in rest if line.startswith("    ")]
    reason = " ".join(line for line in rest if not line.startswith("    "))
    if len(indented) < 2 or not reason:
        raise Unreadable(f"{path.name}: of {file} it has no line, no change or no reason")
    line, *changes = indented
    return {Place(file, line, change): reason for change in changes}


def places_of(mutants, source):
    """The mutants of a file, each with its place; `source` is the text of the file."""
    lines = source.decode().split("\n")
    counts = collections.Counter()
    places = {}
    for mutant in sorted(mutants):
        place = Place(mutant.file, lines[mutant.line - 1].strip(), mutant.change)
        counts[place] += 1
        if counts[place] > 1:
            place = dataclasses.replace(place, change=f"{place.change} ({counts[place]})")
        places[mutant] = place
    return places
