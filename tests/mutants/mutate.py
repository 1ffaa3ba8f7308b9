"""Copies a source file with one deliberate mistake.

usage: mutate.py SOURCE COPY FROM TO

FROM and TO name the files that hold the text to replace and the mistake. The text must stand in SOURCE
exactly once, so that a mistake whose place has changed is noticed and not skipped.
"""

import pathlib
import sys


def main() -> int:
    source, copy, *texts = sys.argv[1:]
    original, mistake = (pathlib.Path(text).read_text(encoding="utf-8") for text in texts)
    text = pathlib.Path(source).read_text(encoding="utf-8")
    found = text.count(original)
    if found != 1:
        print(f"{source}: expected {original!r} once, found it {found} times", file=sys.stderr)
        return 1
    target = pathlib.Path(copy)
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(text.replace(original, mistake), encoding="utf-8")
    return 0


sys.exit(main())
