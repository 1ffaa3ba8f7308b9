"""What a build or a release does, one step after the other. A dry run prints the steps and does none."""

import shlex
import shutil
import subprocess
import sys


class Failure(Exception):
    """What went wrong and what to do about it, in one line."""


class Command:
    """A program that is run. `judge` is given what it printed, with `judges_errors` also what it said beside
    that, and raises Failure when that will not do; when it `judges_failures`, nobody else does. `advice` is
    for when the program fails, unless it is one that `reports` itself, in one line, what went wrong.
    `goes_on` says why the steps after it are taken all the same then."""

    def __init__(
        self,
        *arguments,
        judge=None,
        judges_errors=False,
        judges_failures=False,
        advice="",
        reports=False,
        goes_on="",
    ):
        self.arguments = [str(argument) for argument in arguments]
        self.judge = judge
        self.errors = subprocess.STDOUT if judges_errors else None
        self.judges_failures = judges_failures
        self.advice = advice and f"; {advice}"
        self.reports = reports
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
        if result.returncode and not self.judges_failures:
            if self.errors:
                sys.stderr.write(result.stdout)
            self._fail(result.returncode)
        elif self.judge:
            self.judge(result.stdout)

    def _fail(self, status):
        # A signal left it no time to.
        if self.reports and status > 0:
            raise Failure()
        failure = f"failed with exit status {status}: {self}{self.advice}"
        if not self.goes_on:
            raise Failure(failure)
        print(f"{failure}; {self.goes_on}", file=sys.stderr, flush=True)


class Work:
    """Something that is done here instead of by a program. Shown as a comment."""

    def __init__(self, description, work):
        self.description = description
        self.work = work

    def __str__(self):
        return f"# {self.description}"

    def run(self):
        try:
            self.work()
        except OSError as error:
            raise Failure(f"failed to {self.description}: {error}") from None


def run(steps, made=()):
    """`made` has the paths of what they make. When one of them fails, none of that is left."""
    try:
        for step in steps:
            print(step, flush=True)
            step.run()
    except BaseException:
        for path in made:
            _remove(path)
        raise


def show(steps, indent=""):
    for step in steps:
        print(f"{indent}{step}")


def end_with(failure, program):
    """The exit status for a failure, after its line. One without words was reported already."""
    sys.stdout.flush()
    if str(failure):
        print(f"{program}: {failure}", file=sys.stderr)
    return 1


def _remove(path):
    if path.is_dir() and not path.is_symlink():
        shutil.rmtree(path)
    else:
        path.unlink(missing_ok=True)
