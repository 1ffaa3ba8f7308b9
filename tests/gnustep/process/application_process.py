"""The application's process on GNUstep, what it tells of itself, and the hand at its mouse and keyboard."""

import collections
import dataclasses
import subprocess

from live_window import PATIENCE, Area, run, wait_for

# Without an icon of the application's own, with borders left to a window manager, and with menus that have
# room for a mark before the title, as Row knows them.
SETTINGS = """{
    GSSuppressAppIcon = YES;
    GSX11HandlesWindowDecorations = NO;
    NSMenuInterfaceStyle = NSWindows95InterfaceStyle;
}
"""


@dataclasses.dataclass(frozen=True)
class Place:
    """An area of the screen and the X window that shows it."""

    window: str
    area: Area

    @staticmethod
    def of(window, *numbers):
        return Place(window, Area(*map(float, numbers)))


class Row:
    """A row of an open menu, and the parts of it that GNUstep draws."""

    def __init__(self, window, left, top, width, height, title, *flags):
        self.place = Place.of(window, left, top, width, height)
        self.title = title
        self.is_separator = "separator" in flags
        self.is_marked = "marked" in flags
        self.is_enabled = "disabled" not in flags

    def __str__(self):
        if self.is_separator:
            return "---"
        return ("✓" if self.is_marked else "") + self.title + ("" if self.is_enabled else " (disabled)")

    @property
    def mark_area(self):
        return self.part(3, 14)

    @property
    def title_area(self):
        return self.part(16, 60)

    @property
    def key_area(self):
        return self.part(self.place.area.width - 26, 22)

    def part(self, left, width):
        """Without the row's border."""
        area = self.place.area
        return Area(area.left + left, area.top + 3, width, area.height - 6)


class ShownWindow:
    """A window and what is in it."""

    def __init__(self, title, place, texts, controls):
        self.title = title
        self.place = place
        self.texts = texts
        self.controls = controls  # places by title
        self.close_button = None
        self.switches = []  # of each its place, and whether it is on

    @staticmethod
    def in_lines(lines):
        """The windows that are told there, the frontmost first."""
        windows = []
        for kind, *words in lines:
            if kind == "window":
                windows.append(ShownWindow(words[-1], Place.of(*words[:-1]), [], {}))
            elif kind == "text":
                windows[-1].texts.append(words[0])
            elif kind == "control":
                windows[-1].controls[words[-1]] = Place.of(*words[:-1])
            elif kind == "close":
                windows[-1].close_button = Place.of(*words)
            elif kind == "switch":
                windows[-1].switches.append((Place.of(*words[:-1]), words[-1] == "on"))
        return windows


def row_with(text, rows):
    found = [row for row in rows if text in row.title]
    if len(found) != 1:
        raise AssertionError(f"{text!r} is not in one of {list(map(str, rows))}")
    return found[0]


class Home:
    """A home directory that outlives a process, and the environment in which GNUstep uses it."""

    def __init__(self, folder, screen):
        self.folder = folder
        settings = folder / "GNUstep" / "Defaults" / "NSGlobalDomain.plist"
        settings.parent.mkdir(parents=True)
        settings.write_text(SETTINGS)
        self.environment = screen.environment | {
            "HOME": str(folder),
            "TMPDIR": str(folder),
            "LC_ALL": "C.UTF-8",
            "LANGUAGES": "English",
            "GNUSTEP_STRING_ENCODING": "NSUTF8StringEncoding",
            # Otherwise each process looks into all of ImageMagick's hundred formats.
            "MAGICK_CODER_MODULE_PATH": str(folder),
        }


class Application:
    """A running process and the hand at its mouse."""

    def __init__(self, program, home, is_permitted):
        self.output = home.folder / "output"
        self.errors = home.folder / "errors"
        environment = home.environment | ({"KESTRUNE_PERMITTED": "yes"} if is_permitted else {})
        with self.output.open("wb") as output, self.errors.open("wb") as errors:
            self.process = subprocess.Popen([program], stdout=output, stderr=errors, env=environment)
        self.environment = environment
        self.button = Place.of(*self.wait_for_line("button", 1))

    def lines(self):
        """The words of each line that the process has told so far."""
        return [line.split("\t") for line in self.output.read_text(encoding="utf-8").split("\n")[:-1]]

    def told(self):
        """The same, by a line's first word: the other words of each such line."""
        lines = collections.defaultdict(list)
        for kind, *words in self.lines():
            lines[kind].append(words)
        return lines

    def windows(self):
        """Those on the screen, as they were told last."""
        lines = self.lines()
        ends = [number for number, line in enumerate(lines) if line[0] == "windows"]
        return ShownWindow.in_lines(lines[ends[-2] + 1 if len(ends) > 1 else 0 : ends[-1]]) if ends else []

    def wait_for_control(self, title):
        """The front window, once it has a button with that title."""

        def window():
            return next((shown for shown in self.windows()[:1] if title in shown.controls), None)

        return wait_for(window, f"a button {title!r} in a window")

    def wait_for_line(self, kind, count):
        """The words of the line that makes it so many of the kind."""

        def lines_so_far():
            if self.process.poll() is not None:
                status = self.process.returncode
                raise AssertionError(f"the process ended with {status}: {self.errors.read_text()}")
            lines = self.told()[kind]
            return lines if len(lines) >= count else None

        return wait_for(lines_so_far, f"line {count} that begins with {kind!r}")[count - 1]

    def wait_until_shown(self, place):
        """What is done with the mouse before goes to the screen behind the window."""

        def is_shown():
            return "IsViewable" in run("xwininfo", "-id", place.window, env=self.environment)

        wait_for(is_shown, "a window on the screen")

    def hand(self, *steps):
        run("xdotool", *map(str, steps), env=self.environment)

    def move_to(self, area):
        self.hand("mousemove", *area.middle)

    def click(self):
        self.hand("mousedown", 1, "mouseup", 1)

    def press(self, window, title):
        """Without the release. What GNUstep tracks is a button that is held."""
        count = len(self.told()["pressed"])
        self.move_to(window.controls[title].area)
        self.hand("mousedown", 1)
        if self.wait_for_line("pressed", count + 1) != [title]:
            raise AssertionError(f"not {title!r} was pressed")

    def press_and_release(self, window, title):
        self.press(window, title)
        self.hand("mouseup", 1)

    def click_on(self, place):
        self.wait_until_shown(place)
        self.move_to(place.area)
        self.click()

    def open_menu(self):
        """Presses the mouse on the status item and holds it. Gives the rows of the menu that is open then."""
        before = self.told()
        self.wait_until_shown(self.button)
        self.move_to(self.button.area)
        self.hand("mousedown", 1)
        self.wait_for_line("open", len(before["open"]) + 1)
        rows = [Row(*words) for words in self.told()["row"][len(before["row"]) :]]
        self.wait_until_shown(rows[0].place)
        return rows

    def release_on_row(self, row):
        """Of the open menu. What GNUstep chooses then is the row that it has highlighted before."""
        count = len(self.told()["highlighted"])
        self.move_to(row.place.area)
        self.wait_for_line("highlighted", count + 1)
        latest = self.told()["highlighted"][-1]
        if latest != [row.title]:
            raise AssertionError(f"the mouse is on {row.title!r}, and {latest} is highlighted")
        self.hand("mouseup", 1)

    def release_beside_menu(self):
        """Older releases of GNUstep keep the menu open then, until there is a click."""
        left, middle = self.button.area.at(-20, 0.5)
        self.hand("mousemove", left, middle, "mouseup", 1)
        self.click()

    def guarded_after(self, release, *arguments):
        """The displays that are guarded when the release of the mouse has closed the menu."""
        count = len(self.told()["guarded"])
        release(*arguments)
        return self.wait_for_line("guarded", count + 1)[0].split()

    def choose(self, text):
        """Opens the menu and chooses the row with the text. Gives the displays that are guarded then."""
        return self.guarded_after(self.release_on_row, row_with(text, self.open_menu()))

    def look(self):
        """Opens the menu and closes it again. Gives the texts of its rows."""
        rows = self.open_menu()
        self.guarded_after(self.release_beside_menu)
        return list(map(str, rows))

    def quit(self):
        """From the menu. Gives the status with which the process ends."""
        self.release_on_row(row_with("Quit", self.open_menu()))
        return self.process.wait(PATIENCE)

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait(PATIENCE)
