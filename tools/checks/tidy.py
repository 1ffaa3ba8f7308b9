"""clang-tidy over every compiled file, after a look at whether its configuration works at all."""

import concurrent.futures
import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

from .result import Finding, Result

DIAGNOSTIC = re.compile(
    r"^(?P<path>/[^:\n]+):(?P<line>\d+):\d+: (?:warning|error): (?P<message>.*?) ?\[(?P<check>[\w.,-]+)\]$",
    re.MULTILINE,
)

# A file with a badly named class and a comparison that is always true: no configuration of ours lets it pass.
PROBE = """\
class badly_named {
public:
    bool isItself(int value) const { return value == value; }
};
bool probe(const badly_named& object) { return object.isItself(1); }
"""
PROBE_CHECKS = {"readability-identifier-naming", "misc-redundant-expression"}


def run(tree):
    findings = _configuration_findings(tree)
    files = sorted(tree.compiled)
    if not files:
        findings.append(Finding(".", 1, "no compiled file to look at; pass a configured build with --build"))
    # A configuration that does not work would only repeat itself for each file.
    if not findings:
        with (
            tempfile.TemporaryDirectory() as database,
            concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool,
        ):
            # A file that is there twice would be looked at twice.
            entries = json.dumps([tree.compiled[path] for path in files])
            pathlib.Path(database, "compile_commands.json").write_text(entries, encoding="utf-8")
            for found in pool.map(lambda path: _file_findings(tree, path, database), files):
                findings += found
    # A header's finding appears with each file that includes it.
    return Result(f"{len(files)} files", sorted(set(findings)))


def _configuration_findings(tree):
    """clang-tidy falls back to its own checks when it cannot read ours, so each has to find something."""
    findings = []
    configurations = [path for path in tree.files if path.split("/")[-1] == ".clang-tidy"]
    if ".clang-tidy" not in configurations:
        return [Finding(".clang-tidy", 1, "is missing; without it clang-tidy checks next to nothing")]
    with tempfile.TemporaryDirectory() as temporary:
        for path in configurations:
            copy = pathlib.Path(temporary, path)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(tree.root / path, copy)
        for path in configurations:
            probe = pathlib.Path(temporary, path).with_name("probe.cpp")
            probe.write_text(PROBE, encoding="utf-8")
            output = _clang_tidy([str(probe), "--", "-std=c++20"])
            found = {match["check"].split(",")[0] for match in DIAGNOSTIC.finditer(output.stdout)}
            missed = PROBE_CHECKS - found
            if missed or "Error parsing" in output.stderr:
                names = ", ".join(sorted(missed)) or "nothing"
                findings.append(
                    Finding(path, 1, f"is not in force: a bad file passes {names}; correct the file")
                )
    return findings


def _file_findings(tree, path, database):
    output = _clang_tidy(["-p", database, str(tree.root / path)])
    findings = []
    for match in DIAGNOSTIC.finditer(output.stdout):
        where = tree.relative(match["path"]) or match["path"]
        check = match["check"].split(",")[0]
        findings.append(Finding(where, int(match["line"]), f"{match['message']} [{check}]"))
    if output.returncode and not findings:
        reason = " ".join((output.stdout + output.stderr).split())[-300:]
        findings.append(Finding(path, 1, f"clang-tidy could not look at it: {reason}"))
    return findings


def _clang_tidy(arguments):
    program = shutil.which("clang-tidy-14") or "clang-tidy"
    return subprocess.run([program, "--quiet", *arguments], capture_output=True, text=True)
