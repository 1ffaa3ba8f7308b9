#!/usr/bin/env python3
"""Starts and stops the X server that the tests on GNUstep share.

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

SECONDS_TO_START = 30
SECONDS_TO_STOP = 10


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


def start(file):
    if recorded(file):
        return
    reading, writing = os.pipe()
    # It keeps running between clients, and outlives this process and whoever started it.
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
        start_new_session=True,
    )
    os.close(writing)
    if not select.select([reading], [], [], SECONDS_TO_START)[0]:
        server.kill()
        sys.exit("xserver.py: Xvfb did not start in time")
    with os.fdopen(reading) as pipe:
        number = pipe.readline().strip()
    if not number:
        sys.exit("xserver.py: Xvfb found no free display")
    file.write_text(f":{number} {server.pid}\n")


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
    (start if sys.argv[1] == "start" else stop)(pathlib.Path(sys.argv[2]))
