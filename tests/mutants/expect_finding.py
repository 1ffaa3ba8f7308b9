"""Runs random sessions with a deliberate mistake and expects that they find it.

usage: expect_finding.py PROGRAM ARGUMENT...

Succeeds when the program ends with exit status 1 and names a finding; a crash is no finding.
"""

import subprocess
import sys


def main() -> int:
    run = subprocess.run([*sys.argv[1:], "--findings", "1"], capture_output=True, text=True, check=False)
    findings = [line for line in run.stdout.splitlines() if line.startswith("Finding at seed ")]
    if run.returncode == 1 and findings:
        print(findings[0])
        return 0
    print(f"the mistake was not found; exit status {run.returncode}", file=sys.stderr)
    print(run.stdout[-2000:], run.stderr[-2000:], sep="\n", file=sys.stderr)
    return 1


sys.exit(main())
