"""Every function of the seam is in both implementations, and the contract tests call it.

The linker's names tell: they distinguish overloads, and a call is a reference that a compiler has seen.
"""

import re
import subprocess

from .result import Finding, Result

IMPLEMENTATIONS = {"sim": "sim/libkestrune_sim.a", "mac": "mac/libkestrune_mac.a"}
SUITES = "tests/contract/CMakeFiles/kestrune_contract.dir"

# What a handle is made of is the implementation's own matter.
_OPAQUE = re.compile(r"::(State|Counterpart)\b|::~|\(anonymous namespace\)")
_CALLBACK = re.compile(r"^\s*virtual\b.*?\b(\w+)\([^)]*\)[^;]*= 0;", re.MULTILINE)


def run(tree):
    findings, counts, not_built = [], [], []
    for build in tree.builds:
        files = [build / archive for archive in IMPLEMENTATIONS.values()]
        suites = sorted((build / SUITES).rglob("*.o"))
        missing = [file for file in files if not file.exists()] + ([] if suites else [build / SUITES])
        if missing:
            not_built += [Finding(str(file), 1, "is not built; build it first") for file in missing]
            continue
        found = {name: _functions(build / archive, name) for name, archive in IMPLEMENTATIONS.items()}
        called = _symbols(suites, "--undefined-only")
        findings += _only_in_one(found) + _not_called(set.union(*found.values()), called)
        counts.append(len(set.union(*found.values())))
    if not counts:
        findings += not_built
    callbacks = [(path, name) for path in _seam(tree) for name in _CALLBACK.findall(tree.text(path))]
    suites = "\n".join(tree.text(path) for path in tree.cpp_files if path.startswith("tests/contract/"))
    findings += [
        Finding(path, 1, f"no contract test has {name}; write one")
        for path, name in callbacks
        if not re.search(rf"\b{name}\b", suites)
    ]
    if not tree.builds:
        findings.append(Finding(".", 1, "no build to look into; pass a built one with --build"))
    return Result(f"{max(counts, default=0)} functions and {len(callbacks)} callbacks of the seam", findings)


def _seam(tree):
    return [path for path in tree.files if re.match(r"platform/\w+\.h$", path)]


def _functions(archive, implementation):
    """The functions of the application's own namespace that an implementation defines for others."""
    own = f"kestrune::{implementation}::"
    return {
        name
        for name in _symbols([archive], "--defined-only", kind="T")
        if name.startswith("kestrune::") and not name.startswith(own) and not _OPAQUE.search(name)
    }


def _symbols(files, selection, kind=None):
    command = ["nm", "--demangle", "--extern-only", "--format=posix", selection, *map(str, files)]
    output = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    symbols = (re.match(r"(.+?) ([A-Za-z])(?: [0-9a-f ]+)?$", line.rstrip()) for line in output.splitlines())
    return {symbol[1] for symbol in symbols if symbol and kind in (None, symbol[2])}


def _only_in_one(found):
    return [
        Finding("platform", 1, f"only {name}/ has {function}; the other implementation needs it as well")
        for name, functions in found.items()
        for function in sorted(functions - set.intersection(*found.values()))
    ]


def _not_called(functions, called):
    return [
        Finding("tests/contract", 1, f"no contract test calls {function}; write one")
        for function in sorted(functions - called)
    ]
