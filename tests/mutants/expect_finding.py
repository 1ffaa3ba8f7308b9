"""Runs a program with a deliberate mistake, and expects that its random sessions or its test find it.

usage: expect_finding.py PROGRAM ARGUMENT...

Succeeds when the program ends with exit status 1 and names a finding; a crash is no finding.
"""

import sys

import judging


def search(command):
    """What was found first, or nothing, and all that the program said, with how it ended."""
    status, output = judging.run(command)
    found = judging.findings(output)
    return (found[0] if status == 1 and found else ""), f"exit status {status}\n{output[-4000:]}"


def main() -> int:
    found, ending = search(sys.argv[1:])
    if found:
        print(found)
        return 0
    print(f"the mistake was not found; {ending}", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
