#!/usr/bin/env python3
"""X servers for tests, and the one that those on GNUstep share.

xserver.py start FILE   starts one, unless that of FILE still runs, and writes "DISPLAY PROCESS" into FILE
xserver.py stop FILE    stops that of FILE, if it still runs
"""

import os
import pathlib
import select
import signal
import socket
import subprocess
import sys

OPTIONS = ["-nolisten", "tcp", "-noreset"]
SECONDS_TO_START = 30
SECONDS_TO_STOP = 10

LOWEST_DISPLAY = 100
DISPLAYS = 50_000
ATTEMPTS = 20


def recorded(file):
    """The display and the process that FILE names, if that is a server which answers."""
    try:
        display, process = file.read_text().split()
        command = pathlib.Path(f"/proc/{process}/cmdline").read_bytes().split(b"\0")
        with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as client:
            client.connect(f"/tmp/.X11-unix/X{display.removeprefix(':')}")
    except (OSError, ValueError):
        return None
    return (display, int(process)) if os.path.basename(command[0]) == b"Xvfb" else None


def is_ready(pipe):
    """Whether a server takes clients now. It says so in a line, in pieces; one that ends says nothing."""
    if not select.select([pipe], [], [], SECONDS_TO_START)[0]:
        raise OSError("Xvfb did not start in time")
    return bool(pipe.readline())


def launch(size):
    """A display with a screen of that size, and its server, which keeps running between clients and outlives
    this process. Of a number that is hardly used again: a server that ends takes the socket of the next one
    with that number along."""
    for attempt in range(ATTEMPTS):
        display = f":{LOWEST_DISPLAY + (os.getpid() + attempt) % DISPLAYS}"
        reading, writing = os.pipe()
        with open(reading, "rb") as pipe:
            server = subprocess.Popen(
                ["Xvfb", display, "-displayfd", str(writing), "-screen", "0", f"{size}x24", *OPTIONS],
                pass_fds=[writing],
                stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
                start_new_session=True,
            )
            os.close(writing)
            try:
                if is_ready(pipe):
                    return display, server
            except OSError:
                server.kill()
                raise
            server.wait()
    raise OSError("Xvfb found no free display")


def start(file):
    if not recorded(file):
        display, server = launch("1280x1024")
        file.write_text(f"{display} {server.pid}\n")


def stop(file):
    server = recorded(file)
    if server:
        watched = os.pidfd_open(server[1])
        os.kill(server[1], signal.SIGTERM)
        if not select.select([watched], [], [], SECONDS_TO_STOP)[0]:
            os.kill(server[1], signal.SIGKILL)
    file.unlink(missing_ok=True)


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] not in ("start", "stop"):
        sys.exit(__doc__)
    try:
        (start if sys.argv[1] == "start" else stop)(pathlib.Path(sys.argv[2]))
    except OSError as error:
        sys.exit(f"xserver.py: {error}")
