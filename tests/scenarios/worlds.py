"""Where stories are told: on the simulated Mac and on GNUstep, there also by the program built for Macs."""

import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(REPOSITORY / "tests/gnustep"))
import xserver  # noqa: E402

FIRST_RUN = "FirstRun.GoesFromTheLaunchToAHeldDock"

SECONDS = 120


def all_worlds(build):
    """The name of each that the build has, and its program. The program for Macs does not run everywhere."""
    listed = build / "tests/scenarios/worlds"
    if not listed.is_file():
        raise Failure(f"{listed} is not there; configure the build with GNUstep installed")
    lines = listed.read_text(encoding="utf-8").splitlines()
    return {name: pathlib.Path(program) for name, program in (line.split("\t") for line in lines)}


def desk(build):
    """The painted desk of the build that has the simulated Mac, which comes first."""
    simulated = next(iter(all_worlds(build).values()))
    return simulated.parents[2] / "desk/kestrune-desk"


class Failure(Exception):
    """A story that did not come to its end, in the words of its world."""


@contextlib.contextmanager
def stage():
    """A folder for what is written, and the environment of programs on an X server of their own."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        server = folder / "display"
        xserver.start(server)
        try:
            yield folder, {**os.environ, "KESTRUNE_DISPLAY_FILE": str(server)}
        finally:
            xserver.stop(server)


def tell(program, story, environment):
    """Runs one test of a program. The names of files go through the environment: GNUstep takes an argument
    for a document."""
    if not program.is_file():
        raise Failure(f"{program} is not built; run make test, or tools/setup test and build everything")
    finished = subprocess.run(
        [program], env={**environment, "GTEST_FILTER": story}, capture_output=True, text=True, timeout=SECONDS
    )
    if finished.returncode:
        raise Failure(f"{program.name} did not come to its end:\n{finished.stdout}{finished.stderr}")


def names(worlds):
    """"a, b and c"."""
    *most, last = worlds
    return f"{', '.join(most)} and {last}"
