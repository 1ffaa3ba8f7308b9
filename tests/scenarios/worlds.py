"""Where stories are told: on the simulated Mac and on GNUstep, there also by the program built for Macs."""

import contextlib
import os
import pathlib
import platform
import subprocess
import sys
import tempfile

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(REPOSITORY / "tests/gnustep"))
import xserver  # noqa: E402

FIRST_RUN = "FirstRun.GoesFromTheLaunchToAHeldDock"

SECONDS = 120


def all_worlds():
    """The name of each and its program in a build folder. That for Macs runs on its own processor only."""
    worlds = {
        "the simulated Mac": "tests/scenarios/scenarios_sim",
        "GNUstep": "tests/gnustep/scenarios_gnustep",
    }
    if platform.machine() == "x86_64":
        worlds["GNUstep as built for Macs"] = "tests/gnustep/scenarios_macho_gnustep"
    return worlds


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
            yield folder, {**os.environ, "DISPLAY": server.read_text().split()[0]}
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
