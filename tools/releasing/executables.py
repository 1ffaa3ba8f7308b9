"""Every program and library in the application is for both processors and for its oldest system.

Found by what they begin with: a list of names would not have what the next framework brings.
"""

import struct

from . import information
from .halves import PROCESSORS, PROGRAM
from .sealing import machofile
from .steps import Failure


def require_all(application):
    minimum_system = information.versions(application / "Contents/Info.plist").minimum_system
    for path in sorted(application.rglob("*")):
        if path.is_file() and not path.is_symlink() and _is_mach_o(path):
            _require(path, minimum_system, is_own=path == application / PROGRAM)


def _is_mach_o(path):
    with open(path, "rb") as file:
        return file.read(4) in machofile.BEGINNINGS


def _require(path, minimum_system, is_own):
    """What is not ours may run on systems that are too old for us."""
    systems = _systems(path)
    missing = [processor for processor in PROCESSORS if processor not in systems]
    if missing:
        raise Failure(
            f"{path} is not for {' and '.join(missing)}; the application is for {' and '.join(PROCESSORS)}"
        )
    oldest = information.numbers(minimum_system)
    for processor, system in systems.items():
        found = information.numbers(system)
        if found > oldest or is_own and found != oldest:
            raise Failure(f"{path} is for macOS {system} ({processor}), and Info.plist says {minimum_system}")


def _systems(path):
    """The oldest that each half runs on."""
    try:
        return {half.processor: half.minimum_system for half in machofile.halves_of(path.read_bytes())}
    except Failure as failure:
        raise Failure(f"{path} {failure}") from None
    except (struct.error, ValueError):
        raise Failure(f"{path} begins as a program does and is none") from None
