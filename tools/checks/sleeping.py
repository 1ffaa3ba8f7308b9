"""A test that sleeps is slow when it passes and wrong when the machine is busy."""

import re

from .result import Finding, Result

SLEEP = re.compile(r"\b(?:sleep_for|sleep_until|usleep|nanosleep|SDL_Delay)\b|(?<![\w.>])(?:::)?sleep\s*\(")


def run(tree):
    files = [path for path in tree.cpp_files if path.startswith(("tests/", "benchmarks/"))]
    findings = [
        Finding(path, number, "a test does not sleep; advance the session's virtual time")
        for path in files
        for number, line in enumerate(tree.code(path), 1)
        if SLEEP.search(line)
    ]
    return Result(f"{len(files)} files", findings)
