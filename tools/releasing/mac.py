"""The application as a Mac builds and signs it, with Apple's own programs."""

import os
import pathlib
import shutil

from . import halves, signing
from .steps import Command, Failure, Work
from .symbols import extraction

# In a build.
BUNDLE = pathlib.Path("mac/Kestrune.app")


class Mac:
    sealed = "signed"
    dwarfdump = "dwarfdump"
    # The one bundle that is opened, whichever build it is of: two of one identifier would share a row of the
    # permission. Not a build's own, as the linker would write into what is signed.
    application = pathlib.Path("build/mac/Kestrune.app")
    programs = ("codesign", "ditto", "dsymutil", "dwarfdump", "strip")

    def __init__(self, more_programs=(), preset="mac-universal"):
        self.programs = (*self.programs, *more_programs)
        self.preset = preset
        self.folder = pathlib.Path("build", preset)
        self.built = self.folder / BUNDLE
        self.halves = []

    def require(self, options):
        del options  # Whether the keychain has the certificate is asked in the first step.
        missing = [program for program in self.programs if not shutil.which(program)]
        if missing:
            raise Failure(f"needs a Mac: {' and '.join(missing)} not found; --dry-run prints what would run")

    def build(self):
        return [
            Command("cmake", "--preset", self.preset),
            # Without a number make would start a compiler for every file at once.
            Command("cmake", "--build", "--preset", self.preset, "--parallel", os.cpu_count()),
        ]

    def copy(self, source, target):
        return [Command("ditto", "--noextattr", "--noqtn", source, target)]

    def strip(self, symbols):
        return [
            extraction("dsymutil", self.folder, BUNDLE / halves.PROGRAM, symbols.folder),
            Command("strip", symbols.program),
        ]

    def sign(self, framework, identity):
        # Limits are checked on Linux only, and so is the seal by somebody else than its maker: those programs
        # are made with libraries of Debian's. Here codesign looks at what it made.
        return [
            *signing.steps(self.application, framework, identity),
            Work(f"read the signature of each half of {self.application}", self._read_halves),
        ]

    def _read_halves(self):
        self.halves = halves.lines(self.application / halves.PROGRAM)
