"""The application as a Mac builds and signs it, with Apple's own programs."""

import pathlib
import shutil

from . import halves, signing
from .steps import Command, Failure, Work
from .symbols import extraction

BUILD = pathlib.Path("build/mac")
# In the build.
BUNDLE = pathlib.Path("mac/Kestrune.app")


class Mac:
    sealed = "signed"
    dwarfdump = "dwarfdump"
    built = BUILD / BUNDLE
    # Not the build's own: it would link again into a bundle that is signed.
    application = BUILD / BUNDLE.name
    programs = ("codesign", "ditto", "dsymutil", "dwarfdump", "strip")

    def __init__(self, more_programs=()):
        self.programs = (*self.programs, *more_programs)
        self.halves = []

    def require(self, options):
        del options  # Whether the keychain has the certificate is asked in the first step.
        missing = [program for program in self.programs if not shutil.which(program)]
        if missing:
            raise Failure(f"needs a Mac: {' and '.join(missing)} not found; --dry-run prints what would run")

    def build(self):
        return [
            Command("cmake", "--preset", "mac"),
            Command("cmake", "--build", "--preset", "mac", "--parallel"),
        ]

    def copy(self, source, target):
        return [Command("ditto", "--noextattr", "--noqtn", source, target)]

    def strip(self, symbols):
        return [
            extraction("dsymutil", BUILD, BUNDLE / halves.PROGRAM, symbols.folder),
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
