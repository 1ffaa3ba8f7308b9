"""The application as a Mac builds and signs it, with Apple's own programs."""

import pathlib
import shutil

from . import signing
from .steps import Command, Failure

BUILT = pathlib.Path("build/mac/mac/Kestrune.app")


class Mac:
    application = pathlib.Path("build/mac/Kestrune.app")
    programs = ("codesign", "ditto")

    def __init__(self, more_programs=()):
        self.programs = (*self.programs, *more_programs)

    def require(self, options):
        del options  # Whether the keychain has the certificate, codesign says.
        missing = [program for program in self.programs if not shutil.which(program)]
        if missing:
            raise Failure(f"needs a Mac: {' and '.join(missing)} not found; --dry-run prints what would run")

    def build(self):
        return [
            Command("cmake", "--preset", "mac"),
            Command("cmake", "--build", "--preset", "mac", "--parallel"),
            # A copy: the build would link again into a bundle that is signed.
            Command("rm", "-rf", self.application),
            Command("ditto", BUILT, self.application),
        ]

    def copy(self, framework, target):
        return [Command("ditto", "--noextattr", "--noqtn", framework, target)]

    def sign(self, framework, identity):
        return signing.steps(self.application, framework, identity)

    def closing_words(self):
        return f"{self.application} is built and signed"
