"""The application as Linux builds and signs it: each half with LLVM, and an ad-hoc seal of our own.

What the seal is worth a program says that was written apart from it, tests/macho.
"""

import pathlib

from . import sealing
from .halves import PROCESSORS, PROGRAM
from .parameters import AD_HOC
from .steps import Command, Failure, Work
from .symbols import extraction

FOLDER = pathlib.Path("build/cross")
# In the build of each half.
BUNDLE = pathlib.Path("mac/Kestrune.app")
SDK = pathlib.Path("mac/sdk")
# Where tools/setup puts it.
LLVM = pathlib.Path("build/llvm/tools/bin")


class Linux:
    sealed = "sealed"
    dwarfdump = LLVM / "llvm-dwarfdump"

    def __init__(self, folder=FOLDER, preset="gcc"):
        """Builds into the folder. The checks are programs of that preset."""
        self.folder = pathlib.Path(folder)
        self.preset = preset
        self.built = _build_of(PROCESSORS[0]) / BUNDLE
        self.application = self.folder / BUNDLE.name
        self.halves = []

    def require(self, options):
        if options.identity != AD_HOC:
            raise Failure(
                f"--identity {options.identity!r}: a certificate signs on a Mac only; leave it out for an "
                "ad-hoc signature"
            )
        if not LLVM.is_dir():
            raise Failure(f"{LLVM} is not there; tools/setup app installs it")

    def build(self):
        return [step for processor in PROCESSORS for step in _cross_build(processor)]

    def copy(self, source, target):
        return [Command("cp", "-R", "-H", source, target)]

    def strip(self, symbols):
        stripped = {processor: self.folder / f"Kestrune-{processor}" for processor in PROCESSORS}
        first, other = PROCESSORS
        others = self.folder / "symbols"
        return [
            *(_strip(processor, stripped[processor]) for processor in PROCESSORS),
            _join(*stripped.values(), symbols.program),
            # For both at once dsymutil would want a Mac's own lipo.
            _extraction(first, symbols.folder),
            _extraction(other, others, "--flat"),
            _join(symbols.file, others, symbols.file),
            Command("rm", "-f", *stripped.values(), others),
        ]

    def sign(self, framework, identity):
        del framework, identity  # The seal goes by what lies in the bundle, and require() saw the identity.
        program = self.application / PROGRAM
        checks = ("kestrune-check-limits", "kestrune-check-seal")
        place = pathlib.Path("build", self.preset, "tests/macho")
        return [
            Work(f"seal {self.application} and the code in it", lambda: sealing.seal(self.application)),
            Command("tools/configure", self.preset),
            Command("cmake", "--build", "--preset", self.preset, "--target", *checks),
            Command(place / "kestrune-check-seal", self.application, SDK, judge=self._take_halves),
            Command(place / "kestrune-check-limits", program, SDK),
        ]

    def _take_halves(self, output):
        self.halves = output.splitlines()


def _cross_build(processor):
    return [
        Command("tools/configure", f"cross-{processor}"),
        Command("cmake", "--build", _build_of(processor), "--target", "Kestrune"),
    ]


def _build_of(processor):
    return pathlib.Path(f"build/cross-{processor}")


def _strip(processor, target):
    return Command(LLVM / "llvm-strip", "-o", target, _build_of(processor) / BUNDLE / PROGRAM)


def _extraction(processor, target, *options):
    return extraction(LLVM / "dsymutil", _build_of(processor), BUNDLE / PROGRAM, target, *options)


def _join(one, other, both):
    return Command(LLVM / "llvm-lipo", "-create", one, other, "-output", both)
