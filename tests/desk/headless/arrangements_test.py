#!/usr/bin/env python3
"""Plays every recording on many arrangements of displays, and has each event checked by the oracle.

Usage: arrangements_test.py DESK ORACLE

The environment variable KESTRUNE_TRACES names a folder of recordings; without it the desk makes some up.
"""

import itertools
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ARRANGEMENTS = {
    "right": "1512x982+0+0,1920x1080+1512-98",
    "left": "1512x982+0+0,1920x1080-1920+0",
    "above": "1512x982+0+0,1920x1080-204-1080",
    "below": "1512x982+0+0,1280x800+100+982",
    "portrait": "1512x982+0+0,1080.5x1920.25+1512-458.5",
    "L": "1512x982+0+0,1920x1080+1512+0,1512x800+0+982",
    "both sides": "1512x982+0+0,1920x1080-1920+0,2560x1440.5+1512-458.5",
}

# Values of --margin, taken in turn; None leaves it out.
MARGINS = (None, "10", "0", "12.5", "-3")


class Failure(Exception):
    pass


def parse_displays(text):
    number = r"(\d+(?:\.\d+)?)"
    pattern = rf"{number}x{number}([+-]{number})([+-]{number})"
    return [tuple(map(float, (m[3], m[5], m[1], m[2]))) for m in re.finditer(pattern, text)]


def has_outer_bottom_edge(displays, index):
    """Whether part of a display's bottom edge has no display below it."""
    x, y, width, height = displays[index]
    covered = sorted(
        (max(x, left), min(x + width, left + w))
        for left, top, w, h in displays
        if top <= y + height < top + h and left < x + width and left + w > x
    )
    reached = x
    for left, right in covered:
        if left > reached:
            return True
        reached = max(reached, right)
    return reached < x + width


def setting(displays, pin, guard, margin):
    options = ["--displays", displays, "--pin", str(pin), "--guard", guard]
    return options if margin is None else options + [f"--margin={margin}"]


def play(desk, recording, options, emit):
    split = [word for option in options for word in option.split("=")]
    command = [desk, "--replay", recording, *split, "--report", "json", "--emit", emit]
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        raise Failure(f"exit status {result.returncode}: {result.stderr.strip()}")
    return json.loads(result.stdout.splitlines()[-1])


def check_oracle(oracle, emit, options, events):
    command = [sys.executable, oracle, *options, "--lines", str(events), emit]
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        raise Failure(f"the oracle disagrees: {result.stdout}{result.stderr}")
    if f"{events} lines agree" not in result.stdout:
        raise Failure(f"the oracle did not see {events} lines: {result.stdout}")


def check_report(report, displays, pin, guard):
    wanted = {"swallowed": 0, "violations": 0}
    if guard == "on":
        wanted |= {"dockMoves": 0, "dockDisplay": pin}
    else:
        wanted["changed"] = 0
    for name, value in wanted.items():
        if report[name] != value:
            raise Failure(f"{name} is {report[name]}, expected {value}")
    rectangles = parse_displays(displays)
    others = [i for i in range(len(rectangles)) if i != pin - 1]
    may_move = any(has_outer_bottom_edge(rectangles, i) for i in others)
    if guard == "off" and may_move != (report["dockMoves"] > 0):
        ability = "may" if may_move else "cannot"
        raise Failure(f"dockMoves is {report['dockMoves']}, although the Dock {ability} move")
    if guard == "on" and may_move and report["changed"] == 0:
        raise Failure("no event was held")


def recordings_in(folder, desk, scratch):
    if folder:
        return sorted(map(str, pathlib.Path(folder).glob("*.csv")))
    made_up = []
    for seed, size in ((1, "1512x982"), (2, "1920x1080"), (3, "1024x768")):
        path = str(pathlib.Path(scratch, f"made-up-{seed}.csv"))
        command = [desk, "--generate", path, "--seed", str(seed), "--size", size, "--rows", "20000"]
        subprocess.run(command, check=True)
        made_up.append(path)
    return made_up


def main(desk, oracle):
    folder = os.environ.get("KESTRUNE_TRACES")
    failures = 0
    passes = 0
    margins = itertools.cycle(MARGINS)
    with tempfile.TemporaryDirectory() as scratch:
        recordings = recordings_in(folder, desk, scratch)
        if not recordings:
            print(f"no recordings in {folder}")
            return 1
        emit = str(pathlib.Path(scratch, "emitted.csv"))
        for recording in recordings:
            for name, displays in ARRANGEMENTS.items():
                for pin in range(1, displays.count("x") + 1):
                    for guard in ("on", "off"):
                        margin = next(margins)
                        choices = f"{name}, pin {pin}, guard {guard}, margin {margin}"
                        title = f"{pathlib.Path(recording).stem}, {choices}"
                        options = setting(displays, pin, guard, margin)
                        try:
                            report = play(desk, recording, options, emit)
                            check_report(report, displays, pin, guard)
                            check_oracle(oracle, emit, options, report["events"])
                            passes += 1
                        except Failure as failure:
                            failures += 1
                            print(f"FAILED {title}: {failure}")
    print(f"{passes} passed, {failures} failed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
