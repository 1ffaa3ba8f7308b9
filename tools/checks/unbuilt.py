"""What no build compiles and nothing runs rots unseen: sources, headers and scripted tests."""

import pathlib
import re

from .result import Finding, Result

# System headers, which the standard library's own include as well.
SYSTEM_HEADERS = "mac/sdk/"


def run(tree):
    sources, headers = tree.with_suffix(".cpp"), tree.with_suffix(".h")
    findings = [
        Finding(tree.relative(build) or str(build), 1, "is not configured; run cmake --preset with its name")
        for build in tree.builds
        if not (build / "compile_commands.json").exists()
    ]
    if not tree.builds:
        findings.append(Finding(".", 1, "no build to compare with; pass a configured one with --build"))
    findings += [
        Finding(path, 1, "no build compiles it; name it in the CMakeLists.txt of its folder or delete it")
        for path in sources
        if path not in tree.compiled
    ]
    included = {
        name for path in tree.cpp_files for _, name, quoted in tree.includes(path) if quoted and name != path
    }
    findings += [
        Finding(path, 1, "nothing includes it; include it where it is needed or delete it")
        for path in headers
        if path not in included and not path.startswith(SYSTEM_HEADERS)
    ]
    findings += [
        Finding(path, 1, "no CMakeLists.txt beside it names it; register it as a test or delete it")
        for path in tree.files
        if re.match(r"tests/(?:.*/)?test_\w+\.py$", path) and not _is_registered(tree, path)
    ]
    return Result(f"{len(sources)} sources and {len(headers)} headers in {len(tree.builds)} builds", findings)


def _is_registered(tree, path):
    test = pathlib.PurePosixPath(path)
    folder = (test.parent / "CMakeLists.txt").as_posix()
    return folder in tree.files and re.search(rf"\b{test.stem}\b", tree.text(folder)) is not None
