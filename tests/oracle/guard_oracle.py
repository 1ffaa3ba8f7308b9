"""Checks a replay of pointer events against the rule of the Dock guard, worked out here a second time.

    guard_oracle.py EMITTED --displays D --pin N --guard on|off [--margin M] [--lines COUNT]

EMITTED is what `kestrune-desk --replay F --displays D --pin N --guard on|off --margin M --emit EMITTED`
wrote: one line for each delivered event, `index,type,x,y,deliveredX,deliveredY`, the location that the
hardware sent and the one that arrived behind the event tap. The options are those of that command; N
counts from 1, the primary display.

The rule: with two displays or more, an event over a display that is not the pinned one and closer than 1
point plus the margin to that display's bottom edge moves up to that distance, or to one point below the
display's top edge where the display is too short for that. Everything else arrives as it was sent. A
margin that is not above 0 counts as 4.

Numbers are compared bit for bit, and each must be written as the shortest text that reads back as the
same number.

Exit status: 0 and "N lines agree" when every line agrees; 1 and the first disagreement with its line; 2
on bad usage.
"""

import argparse
import math
import re
import struct
import sys

DEFAULT_MARGIN = 4.0
EDGE_INSET = 1.0

# CGEventType: mouseMoved, leftMouseDragged, rightMouseDragged, otherMouseDragged.
MOTION_TYPES = ("5", "6", "7", "27")

COLUMNS = ("index", "type", "x", "y", "deliveredX", "deliveredY")

SIZE = r"(\d+(?:\.\d+)?)"
OFFSET = r"([+-]\d+(?:\.\d+)?)"
DISPLAY = re.compile(f"{SIZE}x{SIZE}{OFFSET}{OFFSET}", re.ASCII)
NUMBER = re.compile(r"-?\d+(\.\d+)?(e[+-]\d+)?", re.ASCII)


class UsageError(Exception):
    """The command line cannot be used."""


class Disagreement(Exception):
    """The emitted file is not what the rule gives."""


def parse_displays(text):
    """The displays as (x, y, width, height) in global coordinates, y downwards."""
    placed = []
    for number, item in enumerate(text.split(","), 1):
        match = DISPLAY.fullmatch(item)
        if not match:
            raise UsageError(f"display {number}: expected WxH+X+Y, found {item!r}")
        width, height, x, y = (float(part) for part in match.groups())
        if not (width > 0 and height > 0):
            raise UsageError(f"display {number}: expected a size above 0, found {item!r}")
        placed.append((x, y, width, height))
    if placed[0][:2] != (0, 0):
        raise UsageError("display 1: expected the primary display at +0+0")
    return [there_and_back(frame, placed[0][3]) for frame in placed]


def there_and_back(frame, primary_height):
    """The frame after its trip through AppKit, where y grows upwards from the primary's bottom edge.

    NSScreen reports frames there, so each y is flipped twice, which may change the last digit of a fraction.
    """
    x, y, width, height = frame
    upwards = primary_height - y - height
    return (x, primary_height - upwards - height, width, height)


def contains(frame, x, y):
    left, top, width, height = frame
    return left <= x < left + width and top <= y < top + height


def delivered(x, y, displays, pinned, guard_is_on, margin):
    """Where an event arrives that was sent to (x, y). `pinned` is an index into `displays`."""
    if not guard_is_on or len(displays) < 2:
        return x, y
    containing = (index for index, frame in enumerate(displays) if contains(frame, x, y))
    under_pointer = next(containing, None)
    if under_pointer is None or under_pointer == pinned:
        return x, y
    _, top, _, height = displays[under_pointer]
    effective_margin = margin if margin > 0 else DEFAULT_MARGIN
    lowest_allowed = top + height - EDGE_INSET - effective_margin
    if y <= lowest_allowed:
        return x, y
    return x, max(lowest_allowed, top + EDGE_INSET)


def bits(value):
    return struct.pack(">d", value)


def shortest_text(value):
    """The fewest digits that identify the number, in the shorter of fixed and exponent notation, or fixed."""
    sign = "-" if math.copysign(1.0, value) < 0 else ""
    mantissa, _, exponent_text = repr(abs(value)).partition("e")
    whole, _, fraction = mantissa.partition(".")
    digits = whole + fraction
    exponent = int(exponent_text or "0") + len(whole) - 1  # That of the first digit.
    significant = digits.lstrip("0")
    if not significant:
        return sign + "0"
    exponent -= len(digits) - len(significant)
    significant = significant.rstrip("0")

    if exponent < 0:
        fixed = "0." + "0" * (-exponent - 1) + significant
    elif len(significant) <= exponent + 1:
        fixed = significant + "0" * (exponent + 1 - len(significant))
    else:
        fixed = significant[: exponent + 1] + "." + significant[exponent + 1 :]
    point = "." if len(significant) > 1 else ""
    scientific = f"{significant[0]}{point}{significant[1:]}e{exponent:+03d}"
    return sign + (fixed if len(fixed) <= len(scientific) else scientific)


def parse_number(text, column):
    if not NUMBER.fullmatch(text):
        raise Disagreement(f"expected a number for {column}, found {text[:40]!r}")
    value = float(text)
    if math.isinf(value):
        raise Disagreement(f"expected a finite number for {column}, found {text[:40]!r}")
    if text != shortest_text(value):
        raise Disagreement(
            f"expected {shortest_text(value)} for {column}, found {text[:40]!r}, which is not shortest"
        )
    return value


def check_line(line, index, rule):
    """`rule` maps a sent location to the delivered one."""
    fields = line.split(",")
    if len(fields) != len(COLUMNS):
        raise Disagreement(f"expected {len(COLUMNS)} columns, found {len(fields)}")
    if fields[0] != str(index):
        raise Disagreement(f"expected index {index}, found {fields[0][:40]!r}")
    if fields[1] not in MOTION_TYPES:
        raise Disagreement(f"expected type 5, 6, 7 or 27, found {fields[1][:40]!r}")
    x, y, found_x, found_y = (parse_number(text, name) for text, name in zip(fields[2:], COLUMNS[2:]))
    expected_x, expected_y = rule(x, y)
    if bits(expected_x) != bits(found_x) or bits(expected_y) != bits(found_y):
        raise Disagreement(
            f"({fields[2]}, {fields[3]}) arrived at ({fields[4]}, {fields[5]}), "
            f"expected ({shortest_text(expected_x)}, {shortest_text(expected_y)})"
        )


def check_lines(content, rule, expected_count=None):
    """Checks the bytes of an emitted file and returns the number of its lines."""
    if not content:
        raise Disagreement("line 1: expected an event, found an empty file")
    lines = content.split(b"\n")
    if lines.pop() != b"":
        raise Disagreement(f"line {len(lines) + 1}: expected a line end, found the end of the file")
    for index, line in enumerate(lines):
        try:
            check_line(line.decode("ascii"), index, rule)
        except UnicodeDecodeError:
            raise Disagreement(f"line {index + 1}: expected ASCII text") from None
        except Disagreement as disagreement:
            raise Disagreement(f"line {index + 1}: {disagreement}") from None
    if expected_count is not None and len(lines) != expected_count:
        raise Disagreement(f"expected {expected_count} lines, found {len(lines)}")
    return len(lines)


def finite_number(text):
    if not re.fullmatch(r"[+-]?\d+(\.\d+)?", text, re.ASCII):
        raise argparse.ArgumentTypeError(f"expected a decimal number, found {text!r}")
    return float(text)


def parse_arguments(arguments):
    parser = argparse.ArgumentParser(description="Checks a replay against the rule of the Dock guard.")
    parser.add_argument("emitted")
    parser.add_argument("--displays", required=True)
    parser.add_argument("--pin", required=True, type=int)
    parser.add_argument("--guard", required=True, choices=("on", "off"))
    parser.add_argument("--margin", type=finite_number, default=DEFAULT_MARGIN)
    parser.add_argument("--lines", type=int, help="how many lines the file must have")
    return parser.parse_args(arguments)


def rule_of(options):
    displays = parse_displays(options.displays)
    if not 1 <= options.pin <= len(displays):
        raise UsageError(f"--pin: expected a display from 1 to {len(displays)}, found {options.pin}")

    def rule(x, y):
        return delivered(x, y, displays, options.pin - 1, options.guard == "on", options.margin)

    return rule


def main(arguments=None, output=sys.stdout, errors=sys.stderr):
    options = parse_arguments(arguments)  # Ends with status 2 by itself.
    try:
        rule = rule_of(options)
        with open(options.emitted, "rb") as file:
            content = file.read()
    except (UsageError, OSError) as error:
        print(f"guard_oracle.py: {error}", file=errors)
        return 2
    try:
        count = check_lines(content, rule, options.lines)
    except Disagreement as disagreement:
        print(f"{options.emitted}: {disagreement}", file=output)
        return 1
    print(f"{count} lines agree", file=output)
    return 0


if __name__ == "__main__":
    sys.exit(main())
