"""Which tests judge the mutants of which folder, and how many of them they have to find."""

import dataclasses
import math
import os
import pathlib
import time

import judging

# The programs that can judge a folder, the fastest first, and their arguments but for GoogleTest's.
SESSIONS = {
    "kestrune-simulate": ("--seed", "1", "--seeds", "300", "--findings", "1"),
    "kestrune-simulate-shell": ("--seed", "1", "--seeds", "300", "--findings", "1"),
}
JUDGES = {
    "base": {"base_tests": (), "ui_tests": (), "properties_tests": (), "kestrune_tests": ()},
    "ui": {"ui_tests": (), "kestrune_tests": (), "contract_tests_sim": (), "ui_properties_tests": ()},
    "platform": {"contract_tests_sim": (), "kestrune_tests": ()},
    "Kestrune": {"kestrune_tests": (), "scenarios_sim": (), **SESSIONS},
    "sim": {
        "sim_tests": (),
        "contract_tests_sim": (),
        "kestrune_tests": (),
        "scenarios_sim": (),
        "properties_tests": (),
        **SESSIONS,
    },
    "replay": {
        "recording_tests": (),
        "replay_tests": (),
        "command_tests": (),
        "kestrune_live_tests": (),
        **SESSIONS,
    },
    "desk": {
        "command_tests": (),
        "kestrune_paint_tests": (),
        "headless_tests": (),
        "kestrune_live_tests": (),
    },
    "mac": {
        "selfcheck_tests_gnustep": (),
        "window_tests_gnustep": (),
        "scenarios_gnustep": (),
        "application_tests_gnustep": (),
        "contract_tests_gnustep": (),
    },
}
# On GNUstep each test is a process of its own, which one program can start for all.
ENVIRONMENT = os.environ | {"RUNS": "1"}


@dataclasses.dataclass(frozen=True)
class Group:
    """Folders of whose mutants at least so many in a hundred have to be found."""

    name: str
    folders: tuple
    percent: int

    def may_survive(self, count):
        """How many of so many mutants, a part of one counting as one."""
        return math.ceil(count * (100 - self.percent) / 100)


GROUPS = (
    Group("application", ("Kestrune", "base", "platform", "ui"), 98),
    Group("simulation", ("sim",), 97),
    Group("binding", ("mac",), 92),
)
# Replay and desk are judged when somebody asks for it: nothing ships of them, and nobody has said how good
# their tests have to be.
DESK = Group("desk", ("desk", "replay"), 0)


def group_of(folder):
    return next((group for group in GROUPS if folder in group.folders), DESK)


class Court:
    """The programs that judge, and how long each of them may take."""

    def __init__(self, build):
        self.build = build
        self.seconds = {}

    def judge_the_original(self, target, arguments):
        program = self.build.folder / self.build.programs[target].path
        started = time.monotonic()
        status, output = self._run(program, target, _all_tests(arguments))
        if status != 0:
            raise SystemExit(f"{target} fails without a mistake:\n{output[-2000:]}")
        # Others run beside it, and what waits for what a mistake has taken away waits long.
        self.seconds[target] = 60 + 4 * (time.monotonic() - started)

    def find(self, trial):
        """Who found the mistake and how, or nothing."""
        judges = JUDGES[trial.mutant.file.split("/")[0]]
        name = pathlib.PurePath(trial.mutant.file).stem
        for target, arguments in judges.items():
            found = "" if arguments else self._finds(trial, target, _tests_called(name))
            if found:
                return found
        for target, arguments in judges.items():
            found = self._finds(trial, target, _all_tests(arguments))
            if found:
                return found
        return ""

    def _finds(self, trial, target, arguments):
        program = trial.link(target)
        if not program:
            return ""
        status, output = self._run(program, target, arguments, self.seconds[target])
        if status is None:
            return f"{target}, which did not end"
        found = judging.findings(output)
        return f"{target}: {found[0] if found else f'exit status {status}'}" if status != 0 else ""

    def _run(self, program, target, arguments, seconds=None):
        folder = (self.build.folder / self.build.programs[target].path).parent
        return judging.run([str(program), *arguments], seconds, cwd=folder, env=ENVIRONMENT)


def _all_tests(arguments):
    return arguments or ("--gtest_fail_fast", "--gtest_brief=1")


# The likeliest to find a mistake in a file, as tests are called after what they test.
def _tests_called(name):
    return (*_all_tests(()), f"--gtest_filter=*{name}*")
