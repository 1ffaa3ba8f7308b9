"""Runs random sessions with a deliberate mistake and expects that they find it.

usage: expect_finding.py PROGRAM ARGUMENT...

Succeeds when the program ends with exit status 1 and names a finding; a crash is no finding.
"""

import subprocess
import sys


def search(command):
    """What the sessions have found, which sessions those were, and how it ended.

    The first is None when they found nothing; the second is the name of the program without a mistake.
    """
    run = subprocess.run([*command, "--findings", "1"], capture_output=True, text=True, check=False)
    lines = run.stdout.splitlines()
    found = [line for line in lines if line.startswith("Finding at seed ")]
    sessions = lines[0].split(" ")[0] if lines else ""
    ending = f"exit status {run.returncode}\n{run.stdout[-2000:]}\n{run.stderr[-2000:]}"
    return (found[0] if run.returncode == 1 and found else None), sessions, ending


def main() -> int:
    found, _, ending = search(sys.argv[1:])
    if found:
        print(found)
        return 0
    print(f"the mistake was not found; {ending}", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
