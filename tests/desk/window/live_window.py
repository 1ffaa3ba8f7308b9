"""A real window on a virtual X display, with a pointer that moves, clicks and keys that are pressed."""

import dataclasses
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "gnustep"))
import xserver  # noqa: E402

PROGRAMS = ["Xvfb", "xdotool", "import", "convert", "identify"]
SKIPPED = 77
PATIENCE = 40  # seconds, for whatever is waited for


def wait_for(condition, what):
    """The first true value that the condition gives; fails when it takes too long."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def run(*command, env=None):
    result = subprocess.run(command, capture_output=True, check=True, timeout=PATIENCE, env=env, text=True)
    return result.stdout


class VirtualScreen:
    """An X server of its own."""

    def __init__(self):
        display, self.server = xserver.launch("1600x1000")
        self.environment = {key: value for key, value in os.environ.items() if key != "WAYLAND_DISPLAY"}
        # A virtual screen has no graphics hardware to draw with.
        self.environment |= {
            "DISPLAY": display,
            "SDL_VIDEODRIVER": "x11",
            "SDL_RENDER_DRIVER": "software",
            "SDL_FRAMEBUFFER_ACCELERATION": "0",
        }

    def stop(self):
        self.server.terminate()
        self.server.wait(PATIENCE)


class Desk:
    """A running desk and the hand at its mouse and keyboard. The window's title tells what happened last."""

    def __init__(self, program, screen, folder, *options):
        self.environment = screen.environment
        # Where the window will have its header: keys reach it from there, and no edge is near.
        run("xdotool", "mousemove", "800", "100", env=self.environment)
        self.process = subprocess.Popen(
            [program, "--report", "json", *map(str, options)],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env=self.environment,
            cwd=folder,
            text=True,
        )
        self.window = wait_for(self.find_window, "the window")
        wait_for(self.title, "the first picture")

    def find_window(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the desk ended: {self.process.communicate()}")
        search = ["xdotool", "search", "--name", "^Kestrune: "]
        found = subprocess.run(search, capture_output=True, check=False, env=self.environment, text=True)
        return found.stdout.split()[0] if found.stdout else None

    def title(self):
        title = run("xdotool", "getwindowname", self.window, env=self.environment)
        return title.strip().removeprefix("Kestrune: ")

    def expect(self, beginning):
        wait_for(lambda: self.title().startswith(beginning), f"{beginning!r}, the title is {self.title()!r}")

    def move(self, places):
        """The X server sends an event for each place."""
        steps = [word for place in places for word in self.steps_to(place)]
        run("xdotool", *steps, env=self.environment)

    def steps_to(self, place):
        return ["mousemove", "--window", self.window, *map(str, place)]

    def click(self, place):
        run("xdotool", *self.steps_to(place), "click", "1", env=self.environment)

    def drag(self, start, end):
        """Presses at one place and releases at the other."""
        steps = [*self.steps_to(start), "mousedown", "1", *self.steps_to(end), "mouseup", "1"]
        run("xdotool", *steps, env=self.environment)

    def key(self, *keys):
        run("xdotool", "key", *keys, env=self.environment)

    def push_until(self, display, beginning):
        """Pushes below a display's edge until the title tells what came of it."""

        def push_and_look():
            self.move((x, y) for y in display.rows_below() for x in display.columns(120))
            return self.title().startswith(beginning)

        wait_for(push_and_look, repr(beginning))

    def press(self, key, beginning):
        self.key(key)
        self.expect(beginning)

    def photograph(self, path):
        """The pixels of the window as the X server shows them."""
        run("import", "-window", self.window, str(path), env=self.environment)

    def quit(self):
        self.key("q")
        return self.report()

    def report(self):
        output, errors = self.process.communicate(timeout=PATIENCE)
        if self.process.returncode != 0 or errors:
            raise AssertionError(f"exit status {self.process.returncode}: {errors}")
        return json.loads(output)

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.communicate()


def mean_color(picture, width, height, left, top):
    """Red, green and blue from 0 to 1, averaged over an area."""
    area = f"{width}x{height}+{left}+{top}"
    channels = "%[fx:mean.r] %[fx:mean.g] %[fx:mean.b]"
    text = run("convert", str(picture), "-crop", area, "+repage", "-format", channels, "info:")
    return [float(word) for word in text.split()]


@dataclasses.dataclass(frozen=True)
class Area:
    """In logical pixels of the window, which are pixels on a virtual screen."""

    left: float
    top: float
    width: float
    height: float

    @property
    def middle(self):
        return round(self.left + self.width / 2), round(self.top + self.height / 2)

    def at(self, across, down, offset=0):
        """A place by fractions of the width and the height, moved down by some pixels."""
        return round(self.left + across * self.width), round(self.top + down * self.height) + offset

    def enlarged(self, factor):
        """Around its middle."""
        width, height = factor * self.width, factor * self.height
        left, top = self.left + (self.width - width) / 2, self.top + (self.height - height) / 2
        return Area(left, top, width, height)

    def columns(self, step):
        return range(round(self.left) + 10, round(self.left + self.width) - 10, step)

    def rows_below(self):
        bottom = round(self.top + self.height)
        return range(bottom + 5, bottom + 110, 9)


def places(program, *options):
    """Where the parts of a desk with these options stand, by their names."""
    lines = run(program, *map(str, options)).splitlines()
    return {name: Area(*map(float, numbers)) for name, *numbers in (line.split("\t") for line in lines)}


def pixels(picture, area):
    """A text that is the same for the same pixels of an area."""
    crop = f"{round(area.width)}x{round(area.height)}+{round(area.left)}+{round(area.top)}"
    return run("convert", str(picture), "-crop", crop, "+repage", "-format", "%#", "info:")


def contrast(picture, area):
    """How much the pixels of an area differ, from 0 for those of one colour."""
    crop = f"{round(area.width)}x{round(area.height)}+{round(area.left)}+{round(area.top)}"
    command = ["convert", str(picture), "-crop", crop, "+repage", "-colorspace", "Gray"]
    return float(run(*command, "-format", "%[fx:standard_deviation]", "info:"))


class WindowTest(unittest.TestCase):
    """A virtual screen and a folder for each test."""

    program = None  # the desk

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.screen = VirtualScreen()
        self.addCleanup(self.screen.stop)

    def open(self, *options):
        desk = Desk(self.program, self.screen, self.folder, *options)
        self.addCleanup(desk.stop)
        return desk


def skip_without_programs():
    """Ends the process when the machine has no virtual display to open a window on."""
    missing = [program for program in PROGRAMS if shutil.which(program) is None]
    if missing:
        print(f"skipped: {', '.join(missing)} not installed")
        sys.exit(SKIPPED)
