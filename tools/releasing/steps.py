"""What a build or a release does, one step after the other. A dry run prints the steps and does none."""

import shlex
import subprocess
import sys


class Failure(Exception):
    """What went wrong and what to do about it, in one line."""


class Command:
    """A program that is run. `judge` is given what it printed, with `judges_errors` also what it said beside
    that, and raises Failure when that will not do. `advice` is for when the program fails. `goes_on` says why
    the steps after it are taken all the same then."""

    def __init__(self, *arguments, judge=None, judges_errors=False, advice="", goes_on=""):
        self.arguments = [str(argument) for argument in arguments]
        self.judge = judge
        self.errors = subprocess.STDOUT if judges_errors else None
        self.advice = advice and f"; {advice}"
        self.goes_on = goes_on

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
            self._fail(result.returncode)
        elif self.judge:
            self.judge(result.stdout)

    def _fail(self, status):
        failure = f"failed with exit status {status}: {self}{self.advice}"
        if not self.goes_on:
            raise Failure(failure)
        print(f"{failure}; {self.goes_on}", file=sys.stderr, flush=True)


class Anew(Command):
    """Removes what later steps make, now and again when one of them fails: it would be half made."""

    def __init__(self, *paths):
        super().__init__("rm", "-rf", *paths)


class Work:
    """Something that is done here instead of by a program. Shown as a comment."""

    def __init__(self, description, run):
        self.description = description
        self.run = run

    def __str__(self):
        return f"# {self.description}"


def run(steps):
    removals = []
    try:
        for step in steps:
            print(step, flush=True)
            step.run()
            if isinstance(step, Anew):
                removals.append(step)
    except BaseException:  # also when somebody interrupts it
        for removal in removals:
            removal.run()
        raise


def show(steps, indent=""):
    for step in steps:
        print(f"{indent}{step}")


def end_with(failure, program):
    """The exit status for a failure, after its line."""
    sys.stdout.flush()
    print(f"{program}: {failure}", file=sys.stderr)
    return 1
