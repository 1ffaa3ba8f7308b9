"""Kestrune.app: built, stripped, given its framework and its Info.plist, signed and packed.

With which programs it is built, stripped and signed is a Mac's or Linux' matter (mac.py, linux.py).
"""

from . import archive, executables, information, localizations, signing, sparkle
from .parameters import NO_SPARKLE
from .steps import Command, Work
from .symbols import Symbols


def require_sparkle(options):
    """Before a long build, what the build would end with."""
    if options.sparkle and options.sparkle != NO_SPARKLE:
        sparkle.require_framework(options.sparkle)


def steps(options, system):
    return [*building(options, system), *assembling(options, system)]


def building(options, system):
    return [
        *signing.certificate(options.identity),
        *([] if options.sparkle else sparkle.pinned().steps()),
        *system.build(),
    ]


def made(system):
    """What is there when everything is assembled, and nothing of it otherwise."""
    packed = system.application.with_suffix(".zip")
    return [packed, system.application, Symbols(system.application).folder]


def assembling(options, system):
    contents = system.application / "Contents"
    target = None if options.sparkle == NO_SPARKLE else contents / "Frameworks/Sparkle.framework"
    plist, packed = contents / "Info.plist", system.application.with_suffix(".zip")
    symbols = Symbols(system.application)
    return [
        Command("rm", "-rf", *made(system)),
        Command("mkdir", "-p", system.application.parent),
        *system.copy(system.built, system.application),
        *system.strip(symbols),
        *symbols.comparison(system.dwarfdump),
        Work(
            f"compare the languages of {system.application} with those of {localizations.SOURCES}",
            lambda: localizations.require_all(system.application),
        ),
        *(_embed(options.sparkle or sparkle.pinned().framework, target, system) if target else []),
        Work(
            f"write {plist} {_updates(options)}",
            lambda: information.add_updates(plist, options.feed_url, options.public_key),
        ),
        *system.sign(target, options.identity),
        Work(
            f"compare the processors and the system of every program in {system.application} with {plist}",
            lambda: executables.require_all(system.application),
        ),
        Work(f"pack {packed}", lambda: archive.pack(system.application, packed)),
    ]


def closing_words(system):
    """Where it is, and a line for each half."""
    return "\n".join([f"{system.application} is built and {system.sealed}", *system.halves])


def _embed(framework, target, system):
    return [
        Command("mkdir", "-p", target.parent),
        *system.copy(framework, target),
        # They serve sandboxed applications. A sandboxed one could not guard the Dock, and whatever is
        # shipped has to be signed, notarized and kept safe. The first one is the link to the second.
        Command("rm", "-rf", target / "XPCServices", target / "Versions/B/XPCServices"),
    ]


def _updates(options):
    given = [("SUFeedURL", options.feed_url), ("SUPublicEDKey", options.public_key)]
    texts = [f"{key} {value}" if value else f"without {key}" for key, value in given]
    return f"({', '.join(texts)})"
