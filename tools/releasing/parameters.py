"""The parameters of a build and of a release, and what is wrong with them."""

import argparse
import base64
import binascii
import pathlib
import re

from .steps import Failure

AD_HOC = "-"
NO_SPARKLE = "none"

ADDRESS = re.compile(r"https://[^\s/]+(/\S*)?")
KEY_BYTES = 32


class OneLineParser(argparse.ArgumentParser):
    """Says what is wrong in one line, without the usage, and takes no abbreviations."""

    def __init__(self, **arguments):
        super().__init__(allow_abbrev=False, **arguments)

    def error(self, message):
        self.exit(2, f"{self.prog}: {message}; {self.prog} --help explains the parameters\n")


def add_dry_run(parser):
    parser.add_argument("--dry-run", action="store_true", help="print what would be run, and run nothing")


def add_build_parameters(parser):
    add_dry_run(parser)
    parser.add_argument(
        "--identity",
        metavar="NAME",
        help='the certificate to sign with, as in "Developer ID Application: Name (TEAM)"; '
        '"-" is an ad-hoc signature',
    )
    parser.add_argument(
        "--sparkle",
        metavar="PATH",
        help="a Sparkle.framework to take instead of fetching the one of tools/sparkle.ini; "
        '"none" leaves it out',
    )
    parser.add_argument("--feed-url", metavar="URL", help="where the application looks for updates")
    parser.add_argument("--public-key", metavar="KEY", help="what updates are verified with, base64")


def check_texts(options):
    """Raises Failure for the first value that would not come out of make as it went in."""
    for name, value in vars(options).items():
        if isinstance(value, str) and ("$" in value or "\n" in value):
            raise Failure(f"{flag(name)} {value!r} holds a dollar sign or a new line")


def check(options):
    """Raises Failure for the first value that cannot be right. Absent ones are none of its business."""
    check_texts(options)
    for name in ("feed_url", "download_url"):
        value = getattr(options, name, None)
        if value and not ADDRESS.fullmatch(value):
            raise Failure(f"{flag(name)} {value!r} is no https address")
    if options.public_key and not _is_key(options.public_key):
        raise Failure(
            f"--public-key {options.public_key!r} is not the base64 of {KEY_BYTES} bytes; "
            "generate_keys of Sparkle prints it"
        )
    path = pathlib.PurePath(options.sparkle or "Sparkle.framework")
    if options.sparkle != NO_SPARKLE and path.name != "Sparkle.framework":
        raise Failure(f"--sparkle {options.sparkle!r} is neither a Sparkle.framework nor \"none\"")


def flag(name):
    return f"--{name.replace('_', '-')}"


def _is_key(text):
    try:
        return len(base64.b64decode(text, validate=True)) == KEY_BYTES
    except (binascii.Error, ValueError):
        return False
