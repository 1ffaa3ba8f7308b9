"""The program of the bundle, which has a half for each processor."""

from .sealing import machofile, signature
from .steps import Failure

PROCESSORS = ("arm64", "x86_64")
PROGRAM = "Contents/MacOS/Kestrune"


def lines(path):
    """What each half is known by once it is signed, in the words of kestrune-check-seal."""
    try:
        return [_line(half) for half in machofile.halves_of(path.read_bytes())]
    except Failure as failure:
        raise Failure(f"{path} {failure}") from None


def _line(half):
    directory = signature.directory_in(half.signature)
    return (
        f"{half.processor}: {len(half.data)} bytes, for macOS {half.minimum_system}, {directory.identifier}, "
        f"cdhash {directory.cdhash.hex()}, {directory.pages} pages"
    )
