"""The application as Linux builds and signs it: each half with LLVM, and an ad-hoc seal of our own.

What the seal is worth a program says that was written apart from it, tests/macho.
"""

import pathlib
import re

from . import sealing
from .parameters import AD_HOC
from .steps import Command, Failure, Work

FOLDER = pathlib.Path("build/cross")
PROCESSORS = ("arm64", "x86_64")
PROGRAM = "Contents/MacOS/Kestrune"
SDK = pathlib.Path("mac/sdk")
# Where tools/setup puts it.
LLVM = pathlib.Path("build/llvm/tools/bin")

UUID = re.compile(r"^UUID: (\S+) \((\S+)\)", re.MULTILINE)


class Linux:
    def __init__(self, folder=FOLDER, preset="gcc"):
        """Builds into the folder. The checks are programs of that preset."""
        self.folder = pathlib.Path(folder)
        self.preset = preset
        self.application = self.folder / "Kestrune.app"
        # With the names of functions for whoever reads a crash report; they are not shipped.
        self.symbols = self.folder / "Kestrune.app.dSYM"
        self.both_symbols = self.symbols / "Contents/Resources/DWARF/Kestrune"
        self._uuids = None
        self._halves = ""

    def require(self, options):
        if options.identity != AD_HOC:
            raise Failure(
                f"--identity {options.identity!r}: a certificate signs on a Mac only; leave it out for an "
                "ad-hoc signature"
            )
        if not LLVM.is_dir():
            raise Failure(f"{LLVM} is not there; tools/setup app installs it")

    def build(self):
        built = {processor: _built(processor) / PROGRAM for processor in PROCESSORS}
        stripped = {processor: self.folder / f"Kestrune-{processor}" for processor in PROCESSORS}
        other_symbols = self.folder / "symbols"
        strip = [Command(LLVM / "llvm-strip", "-o", stripped[each], built[each]) for each in PROCESSORS]
        return [
            *(step for processor in PROCESSORS for step in _cross_build(processor)),
            Command("rm", "-rf", self.application, self.symbols),
            Command("mkdir", "-p", self.folder),
            Command("cp", "-R", _built(PROCESSORS[0]), self.application),
            *strip,
            _join(*stripped.values(), self.application / PROGRAM),
            # For both at once dsymutil would want a Mac's own lipo.
            Command(LLVM / "dsymutil", "--quiet", "-o", self.symbols, built["arm64"]),
            Command(LLVM / "dsymutil", "--quiet", "--flat", "-o", other_symbols, built["x86_64"]),
            _join(self.both_symbols, other_symbols, self.both_symbols),
            Command(LLVM / "llvm-dwarfdump", "--uuid", self.symbols, judge=self._take_uuids),
            Command(
                LLVM / "llvm-dwarfdump", "--uuid", self.application / PROGRAM, judge=self._require_same_uuids
            ),
            Command("rm", "-f", *stripped.values(), other_symbols),
        ]

    def copy(self, framework, target):
        return [Command("cp", "-R", "-H", framework, target)]

    def sign(self, framework, identity):
        del framework, identity  # The seal goes by what lies in the bundle, and require() saw the identity.
        program = self.application / PROGRAM
        checks = ("kestrune-check-limits", "kestrune-check-seal")
        place = pathlib.Path("build", self.preset, "tests/macho")
        return [
            Work(f"seal {self.application} and the code in it", lambda: sealing.seal(self.application)),
            Command("cmake", "--preset", self.preset),
            Command("cmake", "--build", "--preset", self.preset, "--target", *checks),
            Command(place / "kestrune-check-seal", self.application, judge=self._take_halves),
            Command(place / "kestrune-check-limits", program, SDK),
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
    return Command(LLVM / "llvm-lipo", "-create", one, other, "-output", both)
