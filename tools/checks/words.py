"""Notes to oneself do not belong in the tree."""

import re

from .result import Finding, Result
from .style import text_files

# Put together here, so that this file does not find itself.
MARKERS = ["TO" + "DO", "FIX" + "ME", "XX" + "X", "HA" + "CK", "WI" + "P", "TB" + "D"]
PATTERN = re.compile(rf"\b(?:{'|'.join(MARKERS)})\b")
CONFLICT = re.compile(r"^(?:<{7}|={7}|>{7}|\|{7})(?: |$)")


def run(tree):
    files = text_files(tree)
    findings = []
    for path in files:
        for number, line in enumerate(tree.text(path).split("\n"), 1):
            for word in PATTERN.findall(line):
                findings.append(Finding(path, number, f"{word} is a note to oneself; do it or drop it"))
            if CONFLICT.match(line):
                findings.append(Finding(path, number, "is left over from a merge; resolve it"))
    return Result(f"{len(files)} files", findings)
