"""Kestrune as whoever works on it runs it: built for this Mac alone, signed and opened."""

import os
import pathlib
import signal
import time

from . import information, signing
from .mac import Mac
from .parameters import AD_HOC
from .steps import Command, Failure, Work

SECONDS_TO_QUIT = 10
SECONDS_TO_END = 5
SECONDS_BETWEEN_LOOKS = 0.05


class Run:
    def __init__(self, identity):
        self.identity = identity
        self.mac = Mac(["open", "osascript", "security"], preset="mac")
        self.identifier = information.identifier()
        self.errors = pathlib.Path("build/mac/Kestrune.stderr")
        self._processes = []

    def require(self):
        self.mac.require(None)

    @property
    def made(self):
        """What is there when it is opened, and nothing of it otherwise."""
        return [self.mac.application, self.errors]

    def building(self):
        return [
            *signing.certificate(self.identity),
            *self.mac.build(),
            Command(
                self.mac.folder / "mac/kestrune-self-check",
                goes_on="Kestrune logs the same and goes on without what is missing",
            ),
        ]

    def opening(self):
        application = self.mac.application
        return [
            Command(
                *["osascript", "-l", "JavaScript", "tools/releasing/quit.js", self.identifier],
                judge=self._take_processes,
            ),
            Work(f"wait until no {self.identifier} runs", self._wait),
            Command("rm", "-rf", *self.made),
            *self.mac.copy(self.mac.built, application),
            *signing.for_debugging(application, self.identity),
            # Whole paths, as it is the system that opens them, in a folder of its own.
            Command("open", "--stderr", self.errors.resolve(), application.resolve()),
        ]

    def closing_words(self):
        lines = [f"Kestrune runs. Its standard error is in {self.errors}."]
        if self.identity == AD_HOC:
            lines.append(
                "macOS asks for the permission again after each changed build, as no certificate signs it; "
                f"`tccutil reset Accessibility {self.identifier}` clears the old row. "
                "docs/ON_A_MAC.md tells how to keep it."
            )
        return "\n".join(lines)

    def _take_processes(self, output):
        try:
            self._processes = [int(line) for line in output.split()]
        except ValueError:
            raise Failure(f"osascript printed no process: {output.strip()!r}") from None

    def _wait(self):
        for process in self._processes:
            if not _ends(process, SECONDS_TO_QUIT):
                _send(process, signal.SIGKILL)
                if not _ends(process, SECONDS_TO_END):
                    raise Failure(f"Kestrune still runs, as process {process}; quit it, then try again")


def _ends(process, seconds):
    """Whether it is gone before so much time is."""
    end = time.monotonic() + seconds
    while _send(process, 0):
        if time.monotonic() > end:
            return False
        time.sleep(SECONDS_BETWEEN_LOOKS)
    return True


def _send(process, number):
    """Whether there was such a process."""
    try:
        os.kill(process, number)
    except ProcessLookupError:
        return False
    return True
