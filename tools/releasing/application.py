"""Kestrune.app: built, given its framework and its Info.plist, and signed."""

import pathlib
import shutil

from . import information, signing, sparkle
from .parameters import NO_SPARKLE
from .steps import Command, Failure, Work

BUILT = pathlib.Path("build/mac/mac/Kestrune.app")
APPLICATION = pathlib.Path("build/mac/Kestrune.app")
FRAMEWORK = APPLICATION / "Contents/Frameworks/Sparkle.framework"
INFORMATION = APPLICATION / "Contents/Info.plist"

MAC_PROGRAMS = ("codesign", "ditto")


def require_mac(programs=MAC_PROGRAMS):
    missing = [program for program in programs if not shutil.which(program)]
    if missing:
        raise Failure(f"needs a Mac: {' and '.join(missing)} not found; --dry-run prints what would run")


def require_sparkle(options):
    """Before a long build, what the build would end with."""
    if not options.sparkle:
        sparkle.pinned().require_checksum()
    elif options.sparkle != NO_SPARKLE:
        sparkle.require_framework(options.sparkle)


def steps(options):
    return [
        Command("cmake", "--preset", "mac"),
        Command("cmake", "--build", "--preset", "mac", "--parallel"),
        # A copy: the build would link again into a bundle that is signed.
        Command("rm", "-rf", APPLICATION),
        Command("ditto", BUILT, APPLICATION),
        *_embed(options),
        Work(
            f"write {INFORMATION} {_updates(options)}",
            lambda: information.add_updates(INFORMATION, options.feed_url, options.public_key),
        ),
        *signing.steps(APPLICATION, None if options.sparkle == NO_SPARKLE else FRAMEWORK, options.identity),
    ]


def _embed(options):
    if options.sparkle == NO_SPARKLE:
        return []
    fetch, framework = [], options.sparkle
    if not framework:
        release = sparkle.pinned()
        fetch, framework = release.steps(), release.framework
    return [
        *fetch,
        Command("mkdir", "-p", FRAMEWORK.parent),
        Command("ditto", "--noextattr", "--noqtn", framework, FRAMEWORK),
        # They serve sandboxed applications. A sandboxed one could not guard the Dock, and whatever is
        # shipped has to be signed, notarized and kept safe. The first one is the link to the second.
        Command("rm", "-rf", FRAMEWORK / "XPCServices", FRAMEWORK / "Versions/B/XPCServices"),
    ]


def _updates(options):
    given = [("SUFeedURL", options.feed_url), ("SUPublicEDKey", options.public_key)]
    texts = [f"{key} {value}" if value else f"without {key}" for key, value in given]
    return f"({', '.join(texts)})"
