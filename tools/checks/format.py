"""Every C++ file is as clang-format writes it."""

import re
import shutil
import subprocess

from .result import Finding, Result

VIOLATION = re.compile(r"^(?P<path>.+?):(?P<line>\d+):\d+: .*\[-Wclang-format-violations\]$")


def run(tree):
    files = tree.cpp_files
    if not files:
        return Result("0 files")
    # The installed versions format differently; this is the one that the tree is written with.
    program = shutil.which("clang-format-14") or "clang-format"
    output = subprocess.run(
        [program, "--style=file", "--dry-run", "-Werror", *files],
        cwd=tree.root,
        capture_output=True,
        text=True,
    )
    first_lines = {}
    for match in map(VIOLATION.match, output.stderr.splitlines()):
        if match:
            first_lines.setdefault(match["path"], int(match["line"]))
    findings = [
        Finding(path, line, f"is not formatted from here on; run: clang-format -i {path}")
        for path, line in first_lines.items()
    ]
    if output.returncode and not findings:
        message = " ".join(output.stderr.split()) or f"exit status {output.returncode}"
        findings.append(Finding(".clang-format", 1, f"clang-format could not run: {message}"))
    return Result(f"{len(files)} files", findings)
