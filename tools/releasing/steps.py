"""What a build or a release does, one step after the other. A dry run prints the steps and does none."""

import shlex
import subprocess
import sys


class Failure(Exception):
    """What went wrong and what to do about it, in one line."""


class Command:
    """A program that is run. `judge` is given what it printed, with `judges_errors` also what it said beside
    that, and raises Failure when that will not do. `advice` is for when the program fails."""

    def __init__(self, *arguments, judge=None, judges_errors=False, advice=""):
        self.arguments = [str(argument) for argument in arguments]
        self.judge = judge
        self.errors = subprocess.STDOUT if judges_errors else None
        self.advice = advice and f"; {advice}"

    def __str__(self):
        return shlex.join(self.arguments)

    def run(self):
        try:
            result = subprocess.run(
                self.arguments,
                stdout=subprocess.PIPE if self.judge else None,
                stderr=self.errors,
                encoding="utf-8",
            )
        except OSError as error:
            raise Failure(f"{self.arguments[0]} cannot be run: {error.strerror}") from None
        if result.returncode:
            if self.errors:
                sys.stderr.write(result.stdout)
            raise Failure(f"failed with exit status {result.returncode}: {self}{self.advice}")
        if self.judge:
            self.judge(result.stdout)


class Work:
    """Something that is done here instead of by a program. Shown as a comment."""

    def __init__(self, description, run):
        self.description = description
        self.run = run

    def __str__(self):
        return f"# {self.description}"


def run(steps):
    for step in steps:
        print(step, flush=True)
        step.run()


def show(steps, indent=""):
    for step in steps:
        print(f"{indent}{step}")


def end_with(failure, program):
    """The exit status for a failure, after its line."""
    sys.stdout.flush()
    print(f"{program}: {failure}", file=sys.stderr)
    return 1
