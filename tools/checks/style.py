"""What every text file keeps to: width, length, white space; and how many files a folder holds."""

import collections
import re

from .result import Finding, Result

MAXIMUM_COLUMNS = 110
MAXIMUM_PROSE_COLUMNS = 120
MAXIMUM_LINES = 400
MAXIMUM_FILES = 50

CODE = (".h", ".cpp", ".S", ".js", ".py", ".sh", ".cmake", "CMakeLists.txt")
PROSE = (".md",)
OTHERS = (".json", ".yml", ".strings", ".txt", ".clang-format", ".clang-tidy", ".gitignore", "Makefile")

CMAKE_TEXT = re.compile(r'^\s*(?:\w+ )?"(?:\\.|[^"\\])*"\)?$')


def run(tree):
    files = text_files(tree)
    findings = [finding for path in files for finding in _findings(path, tree.text(path))]
    findings += _folder_findings(tree)
    return Result(f"{len(files)} files", findings)


def _folder_findings(tree):
    """Of any kind, but not those in the folders below."""
    for folder, count in sorted(collections.Counter(path.rpartition("/")[0] for path in tree.files).items()):
        if count > MAXIMUM_FILES:
            message = f"the folder has {count} files; split it by subject, {MAXIMUM_FILES} fit"
            yield Finding(folder or ".", 1, message)


def text_files(tree):
    """The files that people write, scripts without a suffix among them."""
    return [path for path in tree.files if path.endswith(CODE + PROSE + OTHERS) or _is_script(tree, path)]


def _is_script(tree, path):
    if "." in path.rsplit("/", 1)[-1]:
        return False
    with open(tree.root / path, "rb") as file:
        return file.read(2) == b"#!"


def _findings(path, text):
    lines = text.split("\n")
    if lines[-1]:
        yield Finding(path, len(lines), "the last line does not end; add a newline")
    elif text.endswith("\n\n"):
        yield Finding(path, len(lines) - 1, "the file ends in empty lines; remove them")
    if _is_code(path) and len(lines) - 1 > MAXIMUM_LINES:
        message = f"the file has {len(lines) - 1} lines; split it, {MAXIMUM_LINES} fit"
        yield Finding(path, MAXIMUM_LINES + 1, message)
    for number, line in enumerate(lines, 1):
        if line != line.rstrip():
            yield Finding(path, number, "the line ends in white space; remove it")
        if "\t" in line and not path.endswith("Makefile"):
            yield Finding(path, number, "the line holds a tab; use spaces")
        columns = MAXIMUM_PROSE_COLUMNS if path.endswith(PROSE) else MAXIMUM_COLUMNS
        if len(line) > columns and _is_wrapped(path, line):
            yield Finding(path, number, f"the line has {len(line)} columns; wrap it, {columns} fit")


def _is_code(path):
    return not path.endswith(PROSE + OTHERS) or path.endswith("CMakeLists.txt")


def _is_wrapped(path, line):
    """Tables, links and texts in CMake cannot be wrapped, and data is as wide as it is."""
    if path.endswith(PROSE):
        return not line.startswith(("|", "![")) and "](http" not in line and " " in line.strip()
    if path.endswith((".cmake", "CMakeLists.txt")) and CMAKE_TEXT.match(line):
        return False
    return _is_code(path) or path.endswith("Makefile")
