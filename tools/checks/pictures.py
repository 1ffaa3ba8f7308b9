"""The documents' pictures are what the desk draws; each has the name of its scene and of its appearance."""

import os
import pathlib
import posixpath
import re
import subprocess
import tempfile

from .result import Finding, Result

FOLDER = "docs/images"
PICTURE = re.compile(r"!\[[^\]]*\]\(([^()\s]+\.png)\)")
NAME = re.compile(rf"{FOLDER}/(?P<scene>[\w/-]+)-(?P<appearance>light|dark)\.png")
DESK = "desk/kestrune-desk"
# Another release of a system has other releases of the font and of what draws it.
SYSTEM = "Debian 12"
AGAIN = "run: make pictures"
# The most that a colour may be another one without being seen.
ROUNDING = "1%"
# In a PNG file, as a number of bytes.
SIZE_ENDS = 24
# The desk's font and no other: what somebody has installed, or prefers, changes no picture.
FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/opentype/inter</dir>
  <cachedir>{cache}</cachedir>
</fontconfig>
"""


def run(tree, system=None):
    shown = in_documents(tree)
    findings = [
        Finding(path, 1, "no document shows it; remove it")
        for path in tree.with_suffix(".png")
        if path.startswith(FOLDER + "/") and path not in shown
    ]
    findings += [
        Finding(document, line, f"{path} has no name like {FOLDER}/tour/held-light.png; show another")
        for path, (document, line) in shown.items()
        if not NAME.fullmatch(path)
    ]
    system = system_name() if system is None else system
    if system != SYSTEM:
        return Result(f"{len(shown)} pictures, not compared as this is no {SYSTEM}", findings)
    desks = [build / DESK for build in tree.builds if (build / DESK).exists()]
    if not desks:
        findings.append(Finding(".", 1, f"no build has {DESK}; build it and pass the build with --build"))
    elif not findings:
        findings += _compared(tree, desks[0], shown)
    return Result(f"{len(shown)} pictures of the documents", findings)


def in_documents(tree):
    """The pictures that documents show, each with the document and the line that does so first."""
    shown = {}
    for document in tree.with_suffix(".md"):
        for number, line in enumerate(tree.text(document).split("\n"), 1):
            for target in PICTURE.findall(line):
                path = posixpath.normpath(posixpath.join(posixpath.dirname(document), target))
                shown.setdefault(path, (document, number))
    return shown


def draw(desk, pictures, folder):
    """Draws the pictures, which have paths as the documents' have, below another folder."""
    scenes = {}
    for path in pictures:
        name = NAME.fullmatch(path)
        scenes.setdefault(name["appearance"], []).append(name["scene"])
    with tempfile.TemporaryDirectory() as temporary:
        fonts = pathlib.Path(temporary, "fonts.conf")
        fonts.write_text(FONTS.format(cache=temporary), encoding="utf-8")
        environment = {**os.environ, "FONTCONFIG_FILE": str(fonts), "LC_ALL": "C.UTF-8"}
        for appearance, names in sorted(scenes.items()):
            dark = ["--dark"] if appearance == "dark" else []
            command = [desk, "--gallery", folder, *names, *dark]
            subprocess.run(command, check=True, env=environment, stderr=subprocess.PIPE)


def system_name(release=pathlib.Path("/etc/os-release")):
    """As in "Debian 12", or nothing of a system that does not tell."""
    text = release.read_text(encoding="utf-8") if release.exists() else ""
    values = dict(line.split("=", 1) for line in text.splitlines() if "=" in line)
    return " ".join(values.get(key, "").strip('"') for key in ("ID", "VERSION_ID")).strip().capitalize()


def _compared(tree, desk, shown):
    with tempfile.TemporaryDirectory() as folder:
        try:
            draw(desk, shown, folder)
        except subprocess.CalledProcessError as error:
            return [Finding(".", 1, error.stderr.decode(errors="replace").strip())]
        return [
            Finding(path, 1, f"is not what the desk draws; {AGAIN}")
            for path in sorted(shown)
            if not _is_same(tree.root / path, pathlib.Path(folder, posixpath.relpath(path, FOLDER)))
        ]


def _is_same(picture, drawn):
    if not picture.exists():
        return False
    old, new = picture.read_bytes(), drawn.read_bytes()
    if old == new or old[:SIZE_ENDS] != new[:SIZE_ENDS]:
        return old == new
    # The processors that a Debian runs on may round differently.
    command = ["compare", "-metric", "AE", "-fuzz", ROUNDING, picture, drawn, "null:"]
    return subprocess.run(command, capture_output=True, check=False).returncode == 0
