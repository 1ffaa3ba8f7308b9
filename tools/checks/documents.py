"""What the documents point at is there: files, headings, and paths of the repository that are named."""

import posixpath
import re

from .result import Finding, Result

LINK = re.compile(r"\]\(([^()\s]+)\)")
CODE = re.compile(r"`([^`\s]+)`")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
# Not a path with something to be filled in.
PATH = re.compile(r"[\w.@+-]+(?:/[\w.@+-]+)+/?")
# What is not in the repository until somebody builds it.
MADE = ("build", "out")


def run(tree):
    files = tree.with_suffix(".md")
    findings = []
    pointers = 0
    for path in files:
        for number, line in enumerate(tree.text(path).split("\n"), 1):
            for target in LINK.findall(line):
                pointers += 1
                if not _leads_somewhere(tree, path, target):
                    findings.append(Finding(path, number, f"the link to {target} leads nowhere"))
            for name in CODE.findall(line):
                pointers += 1
                if not _may_be_there(tree, path, name):
                    findings.append(Finding(path, number, f"there is no {name}"))
    return Result(f"{len(files)} documents with {pointers} links and names", findings)


def _leads_somewhere(tree, path, target):
    if target.startswith(("http://", "https://")):
        return True
    file, _, anchor = target.partition("#")
    place = posixpath.normpath(posixpath.join(posixpath.dirname(path), file)) if file else path
    if not (tree.root / place).exists():
        return False
    return not anchor or anchor in {_anchor(heading) for heading in HEADING.findall(tree.text(place))}


def _anchor(heading):
    """As it is made of a heading where the documents are read."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def _may_be_there(tree, path, name):
    """Whether a name in code is no path of the repository, or one of something that is there: a header and
    its source are named without their suffixes."""
    first = name.partition("/")[0]
    if not PATH.fullmatch(name) or first in MADE or not (tree.root / first).is_dir():
        return True
    places = [tree.root / folder / name for folder in ("", posixpath.dirname(path))]
    return any(place.exists() or place.with_name(f"{place.name}.h").exists() for place in places)
