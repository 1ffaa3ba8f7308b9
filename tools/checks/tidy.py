"""clang-tidy over every compiled file, after a look at whether its configuration works at all."""

import concurrent.futures
import itertools
import json
import os
import pathlib
import re
import shlex
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

# Most of the time goes into the headers of the libraries, so files are looked at several at a time, of which
# one at most is where a program begins.
JOINED_FILES = 12
ENTRY_POINT = re.compile(r"^int (?:main|LLVMFuzzerTestOneInput)\(", re.MULTILINE)


def run(tree):
    findings = _configuration_findings(tree)
    files = sorted(path for path in tree.compiled if path.endswith(".cpp"))
    if not files:
        findings.append(Finding(".", 1, "no compiled file to look at; pass a configured build with --build"))
    # A configuration that does not work would only repeat itself for each file.
    if not findings:
        with (
            tempfile.TemporaryDirectory() as database,
            concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool,
        ):
            joined = _joined_files(tree, files, pathlib.Path(database))
            # A file that is there twice would be looked at twice.
            entries = [tree.compiled[path] for path in files]
            entries += [_entry_of_joined(tree, *each) for each in joined.items()]
            pathlib.Path(database, "compile_commands.json").write_text(json.dumps(entries), encoding="utf-8")
            looks = [pool.submit(_joined_findings, tree, *each, database) for each in joined.items()]
            for look in looks:
                findings += look.result()
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


def _joined_files(tree, files, folder):
    """New sources, each of some files of a folder that are compiled alike, beside our configuration."""
    alike = {}
    for path in files:
        alike.setdefault((path.split("/")[0], *_flags(tree.compiled[path])), []).append(path)
    groups = [
        (own_folder, group) for (own_folder, *_), paths in alike.items() for group in _groups(tree, paths)
    ]
    for path in tree.files:
        if path.split("/")[-1] == ".clang-tidy":
            copy = folder / path
            copy.parent.mkdir(exist_ok=True)
            shutil.copy(tree.root / path, copy)
    joined = {}
    for number, (own_folder, group) in enumerate(groups):
        source = folder / own_folder / f"joined{number}.cpp"
        source.parent.mkdir(exist_ok=True)
        lines = [f'#include "{tree.root / path}"\n' for path in group]
        source.write_text("".join(lines), encoding="utf-8")
        joined[source] = group
    return joined


def _groups(tree, paths):
    programs = [path for path in paths if ENTRY_POINT.search(tree.text(path))]
    others = [path for path in paths if path not in programs]
    groups = [others[start : start + JOINED_FILES] for start in range(0, len(others), JOINED_FILES)]
    each_program = [[program] for program in programs]
    return [group + program for group, program in itertools.zip_longest(groups, each_program, fillvalue=[])]


def _flags(entry):
    """How a file is compiled, whichever it is."""
    words = entry.get("arguments") or shlex.split(entry["command"])
    output = words.index("-o") if "-o" in words else len(words)
    return [word for word in words[:output] + words[output + 2 :] if word not in ("-c", entry["file"])]


def _entry_of_joined(tree, source, group):
    entry = tree.compiled[group[0]]
    arguments = [*_flags(entry), "-c", str(source)]
    return {"directory": entry["directory"], "file": str(source), "arguments": arguments}


def _joined_findings(tree, source, group, database):
    """What is not clean together is looked at alone: names of two files may clash and nothing be wrong."""
    if _clang_tidy(["-p", database, str(source)]).returncode == 0:
        return []
    return [finding for path in group for finding in _file_findings(tree, path, database)]


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
