"""The application as Linux builds and signs it: each half with LLVM, and an ad-hoc seal of our own.

What the seal is worth a program says that was written apart from it, tests/macho.
"""

import pathlib
import re
import shutil

from . import sealing
from .parameters import AD_HOC
from .steps import Command, Failure, Work

FOLDER = pathlib.Path("build/cross")
PROCESSORS = ("arm64", "x86_64")
PROGRAM = "Contents/MacOS/Kestrune"
CHECKS = pathlib.Path("build/gcc/tests/macho")
SDK = pathlib.Path("mac/sdk")

# The first LLVM that knows macOS 13 well enough, and those that may follow it.
LLVM_VERSIONS = range(19, 30)
LLVM_PROGRAMS = ("llvm-strip", "llvm-lipo", "dsymutil", "llvm-dwarfdump")

UUID = re.compile(r"^UUID: (\S+) \((\S+)\)", re.MULTILINE)


class Linux:
    application = FOLDER / "Kestrune.app"
    # With the names of functions for whoever reads a crash report; they are not shipped.
    symbols = FOLDER / "Kestrune.app.dSYM"
    both_symbols = symbols / "Contents/Resources/DWARF/Kestrune"

    def __init__(self):
        self._uuids = None
        self._halves = ""

    def require(self, options):
        if options.identity != AD_HOC:
            raise Failure(
                f"--identity {options.identity!r}: a certificate signs on a Mac only; leave it out for an "
                "ad-hoc signature"
            )
        missing = [name for name in LLVM_PROGRAMS if not shutil.which(_llvm(name))]
        if missing:
            raise Failure(f"{' and '.join(map(_llvm, missing))} not found; tools/setup app installs them")

    def build(self):
        built = {processor: _built(processor) / PROGRAM for processor in PROCESSORS}
        stripped = {processor: FOLDER / f"Kestrune-{processor}" for processor in PROCESSORS}
        other_symbols = FOLDER / "symbols"
        strip = [Command(_llvm("llvm-strip"), "-o", stripped[each], built[each]) for each in PROCESSORS]
        return [
            *(step for processor in PROCESSORS for step in _cross_build(processor)),
            Command("rm", "-rf", FOLDER),
            Command("mkdir", "-p", FOLDER),
            Command("cp", "-R", _built(PROCESSORS[0]), self.application),
            *strip,
            _join(*stripped.values(), self.application / PROGRAM),
            # For both at once dsymutil would want a Mac's own lipo.
            Command(_llvm("dsymutil"), "--quiet", "-o", self.symbols, built["arm64"]),
            Command(_llvm("dsymutil"), "--quiet", "--flat", "-o", other_symbols, built["x86_64"]),
            _join(self.both_symbols, other_symbols, self.both_symbols),
            Command(_llvm("llvm-dwarfdump"), "--uuid", self.symbols, judge=self._take_uuids),
            Command(
                _llvm("llvm-dwarfdump"), "--uuid", self.application / PROGRAM, judge=self._require_same_uuids
            ),
            Command("rm", "-f", *stripped.values(), other_symbols),
        ]

    def copy(self, framework, target):
        return [Command("cp", "-R", "-H", framework, target)]

    def sign(self, framework, identity):
        del framework, identity  # The seal goes by what lies in the bundle, and require() saw the identity.
        program = self.application / PROGRAM
        checks = ("kestrune-check-limits", "kestrune-check-seal")
        return [
            Work(f"seal {self.application} and the code in it", lambda: sealing.seal(self.application)),
            Command("cmake", "--preset", "gcc"),
            Command("cmake", "--build", "--preset", "gcc", "--target", *checks),
            Command(CHECKS / "kestrune-check-seal", self.application, judge=self._take_halves),
            Command(CHECKS / "kestrune-check-limits", program, SDK),
        ]

    def closing_words(self):
        return f"{self.application} is built and sealed\n{self._halves}".rstrip()

    def _take_halves(self, output):
        self._halves = output

    def _take_uuids(self, output):
        self._uuids = sorted(UUID.findall(output))

    def _require_same_uuids(self, output):
        found = sorted(UUID.findall(output))
        if [processor for _, processor in found] != sorted(PROCESSORS) or found != self._uuids:
            raise Failure(
                f"{self.symbols} has the UUIDs {self._uuids} and the program {found}; crash reports need "
                "the same"
            )


def _cross_build(processor):
    preset = f"cross-{processor}"
    return [
        Command("cmake", "--preset", preset),
        Command("cmake", "--build", f"build/{preset}", "--target", "Kestrune"),
    ]


def _built(processor):
    return pathlib.Path(f"build/cross-{processor}/mac/Kestrune.app")


def _join(one, other, both):
    return Command(_llvm("llvm-lipo"), "-create", one, other, "-output", both)


def _llvm(name):
    """The program as Debian names it, with its version, or as it is called elsewhere."""
    names = [f"{name}-{version}" for version in LLVM_VERSIONS]
    return next((each for each in (*names, name) if shutil.which(each)), names[0])
