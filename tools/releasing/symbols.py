"""The names and lines behind the addresses of a crash report: kept beside the bundle, not shipped in it."""

import re

from .halves import PROCESSORS, PROGRAM
from .steps import Command, Failure

UUID = re.compile(r"^UUID: (\S+) \((\S+)\)", re.MULTILINE)


class Symbols:
    def __init__(self, application):
        self.program = application / PROGRAM
        self.folder = application.with_suffix(".app.dSYM")
        self.file = self.folder / "Contents/Resources/DWARF" / self.program.name
        self._uuids = None

    def comparison(self, dwarfdump):
        """What finds the symbols of a crash report is a UUID for each half."""
        return [
            Command(dwarfdump, "--uuid", self.folder, judge=self._take_uuids),
            Command(dwarfdump, "--uuid", self.program, judge=self._require_same_uuids),
        ]

    def _take_uuids(self, output):
        self._uuids = sorted(UUID.findall(output))

    def _require_same_uuids(self, output):
        found = sorted(UUID.findall(output))
        if sorted(processor for _, processor in found) != sorted(PROCESSORS) or found != self._uuids:
            raise Failure(
                f"{self.folder} has the UUIDs {self._uuids} and the program {found}; crash reports need "
                "the same"
            )


def extraction(dsymutil, build, program, target, *options):
    """Collects what the object files of a build have. The program names them as they lie in the build."""
    command = [dsymutil, "--oso-prepend-path", build, *options, "-o", target, build / program]
    # Of an object file that it does not find it only warns, and leaves its lines out.
    return Command(*command, judge=_require_silence, keeps_errors=True)


def _require_silence(output):
    if output.strip():
        first, *more = output.strip().splitlines()
        raise Failure(f"the symbols are not whole: {first}{f' and {len(more)} more' if more else ''}")
