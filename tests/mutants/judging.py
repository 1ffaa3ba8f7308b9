"""Building and running what judges a mistake, within a time limit, and reading what it found."""

import contextlib
import os
import re
import signal
import subprocess
import sys
import threading

# How random sessions, GoogleTest, and whoever runs each of its tests by itself name what is wrong.
FINDING = re.compile(
    r"^(?:Finding at seed .*|\[  FAILED  \] (?=\w+[./]).*|[\w./]+ ended with -?\d+(?=:$))", re.MULTILINE
)

_running = set()
_lock = threading.Lock()
_has_ended = threading.Event()


def build(folder, *targets):
    """What the build said when the targets could not be built, or nothing."""
    command = ["cmake", "--build", str(folder), "--target", *targets]
    made = subprocess.run(command, capture_output=True, text=True, check=False)
    return made.stdout + made.stderr if made.returncode != 0 else ""


def run(command, seconds=None, **options):
    """Its exit status, or None when it ran for longer, and what it said."""
    with _lock:
        if _has_ended.is_set():
            raise InterruptedError
        process = subprocess.Popen(
            command,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
            errors="replace",
            # So that it can be ended with all that it has started.
            start_new_session=True,
            **options,
        )
        _running.add(process)
    try:
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        _kill(process)
        return None, process.communicate()[0]
    finally:
        # A program that has ended may have left one that never does.
        _kill(process)
        with _lock:
            _running.discard(process)


def end_all():
    """Ends whatever runs, and lets nothing begin any more."""
    _has_ended.set()
    with _lock:
        for process in _running:
            _kill(process)


def _kill(process):
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


@contextlib.contextmanager
def display(root, folder):
    """The tests' X server, if the build has tests that use it; they find it by themselves."""
    programs = folder / "tests" / "gnustep"
    if not programs.is_dir():
        yield
        return
    command = [sys.executable, str(root / "tests" / "gnustep" / "xserver.py")]
    subprocess.run([*command, "start", str(programs / "display")], check=True)
    try:
        yield
    finally:
        subprocess.run([*command, "stop", str(programs / "display")], check=True)


def findings(output):
    """The lines in which a judge names what is wrong."""
    return FINDING.findall(output)
